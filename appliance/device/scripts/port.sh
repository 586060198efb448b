# Putting the stored link settings of the secondary port into force. Sourced behind settings.sh.
# shellcheck shell=sh disable=SC2154 # variables are set by the functions that read into them

# A virtual interface has no link to set: there the settings are only kept.
apply_port() {
  in_place && return
  read_setting port port
  duplex=${port##*\?}
  speed=${port#*\?}
  reason=$(ethtool -s "$SECONDARY" autoneg "${port%%\?*}" speed "${speed%\?*}" duplex "$duplex" 2>&1) && return
  [ -e "/sys/class/net/$SECONDARY/device" ] || case $reason in *'not supported'*) return 0 ;; esac
  complain "ethtool: $reason"
  return 1
}
