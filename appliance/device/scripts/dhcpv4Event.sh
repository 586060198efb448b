#!/bin/sh
# What becomes of the DHCP client's news. Called by udhcpc with the event's name and the lease in $ip, $subnet,
# $router, $dns, $serverid and $lease, its seconds.

# shellcheck disable=SC2154 # variables are set by the functions that read into them
# shellcheck source=SCRIPTDIR/device.sh
. "${0%/*}/device.sh"
# shellcheck source=SCRIPTDIR/settings.sh
. "$BIN/settings.sh"
# shellcheck source=SCRIPTDIR/change.sh
. "$BIN/change.sh"

take_lease() {
  routers=${router:-$UNKNOWN_IPV4_ADDRESS}
  wanted="${ip:?}?${subnet:?}?${routers%% *}"
  read_line lease_of_before "$DHCPV4_LEASE"
  if [ "$wanted" != "$lease_of_before" ]; then
    clear_ipv4 && assign_ipv4 "$wanted" && replace_file "$DHCPV4_LEASE" "$wanted" || return
  fi
  take_name_servers "$DHCPV4_SERVERS" "${dns-}" || return
  note_lease
}

# Only to be shown: no lease is lost for it. What cannot be written must not be that of another lease.
note_lease() {
  case ${lease-} in
  4294967295) end=never ;;
  *[!0-9]* | '') end= ;;
  *)
    read -r uptime _ </proc/uptime
    end=$((${uptime%%.*} + lease))
    ;;
  esac
  if [ -n "$end" ] && [ -n "${serverid-}" ]; then
    replace_file "$DHCPV4_LEASE_FACTS" "$serverid $end" && return
  fi
  rm -rf "$DHCPV4_LEASE_FACTS" 2>/dev/null
  return 0
}

drop_lease() {
  rm -rf "$DHCPV4_LEASE_FACTS" 2>/dev/null
  rm -f "$DHCPV4_LEASE" && clear_ipv4 && drop_name_servers "$DHCPV4_SERVERS"
}

case ${1-} in
bound | renew) persist take_lease ;;
deconfig) persist drop_lease ;;
esac
