#!/bin/sh
# What becomes of the DHCP client's news. Called by udhcpc with the event's name and the lease in $ip, $subnet,
# $router and $dns.

# shellcheck source=SCRIPTDIR/device.sh
. "${0%/*}/device.sh"
# shellcheck source=SCRIPTDIR/apply.sh
. "$BIN/apply.sh"

take_lease() {
  gateway=${router-}
  lease="${ip:?}?${subnet:?}?${gateway%% *}"
  [ -n "$gateway" ] || lease=$lease${UNKNOWN_IPV4##*\?}
  read_line "$DHCPV4_LEASE"
  if [ "$lease" != "$line" ]; then
    clear_ipv4 && assign_ipv4 "$lease" && replace_file "$DHCPV4_LEASE" "$lease" || exit 1
  fi
  replace_file "$DHCPV4_SERVERS" "${dns-}" && apply_name_servers
}

case ${1-} in
bound | renew) take_lease ;;
deconfig)
  rm -f "$DHCPV4_LEASE"
  clear_ipv4
  drop_name_servers "$DHCPV4_SERVERS"
  ;;
esac
