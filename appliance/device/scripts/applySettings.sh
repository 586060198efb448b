#!/bin/sh
# Puts all stored settings into force. Run once when the appliance starts; what fails is said, and the rest
# is put into force all the same.

# shellcheck disable=SC2154 # variables are set by the functions that read into them
# shellcheck source=SCRIPTDIR/device.sh
. "${0%/*}/device.sh"
# shellcheck source=SCRIPTDIR/settings.sh
. "$BIN/settings.sh"
# shellcheck source=SCRIPTDIR/change.sh
. "$BIN/change.sh"

# put_into_force APPLY NAME...: the settings named, with the function APPLY. A change that was interrupted and that cannot
# be brought to its end is taken back.
put_into_force() {
  apply=$1
  shift
  for name; do put_aside_damaged "$name"; done
  if ! "$apply"; then
    taken_back=
    for name; do
      read_stored before "$name" .before && judge "$name" "$before" && restore_before "$name" &&
        taken_back="$taken_back $name"
    done
    [ -n "$taken_back" ] && complain "back to the settings of before the last change:$taken_back" && "$apply"
  fi || {
    complain "$apply failed"
    status=1
  }
  for name; do forget_before "$name"; done
}

# put_aside_damaged NAME: what is stored but is no setting, cut off or overwritten, counts as missing.
put_aside_damaged() {
  [ -e "$SETTINGS/$1" ] || return 0
  if read_stored stored "$1"; then
    judge "$1" "$stored"
    case $? in
    0) return ;;
    2) ;;
    *) # it cannot be told: the setting was right when it was stored
      complain "the stored setting \"$1\" could not be checked"
      status=1
      return
      ;;
    esac
  fi
  rm -rf "$SETTINGS/$1.damaged"
  if mv -fT "$SETTINGS/$1" "$SETTINGS/$1.damaged" && sync "$SETTINGS"; then
    complain "the stored setting \"$1\" is damaged and counts as missing; it is kept as $SETTINGS/$1.damaged"
  else
    complain "the stored setting \"$1\" is damaged and cannot be put aside"
    status=1
  fi
}

# judge NAME TEXT: as when it was set. 0: right, 2: wrong, anything else: that cannot be told.
judge() {
  case "$1 $2" in
  "ipv4 dhcp $ABSENT_IPV4") ;;
  'ipv4 '*) "$BIN/checkSettings" ipv4 "${2#* }" ;;
  'ipv6 '?*) "$BIN/checkSettings" ipv6 "$2" ;;
  'hostname '?*) "$BIN/checkSettings" host-name "$2" ;;
  'dns '*)
    "$BIN/checkSettings" dns "$2"
    verdict=$?
    [ "$verdict" != 44 ] || verdict=2
    return "$verdict"
    ;;
  esac
}

mkdir -p "$SETTINGS" 2>/dev/null
lock_settings
status=0
put_into_force apply_host_name hostname
put_into_force apply_port port
put_into_force apply_ipv6 stateless dhcpv6 ipv6
put_into_force apply_ipv4 ipv4
put_into_force apply_name_servers dns
exit $status
