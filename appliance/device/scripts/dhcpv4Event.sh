#!/bin/sh
# What becomes of the DHCP client's news. Called by udhcpc with the event's name and the lease in $ip, $subnet,
# $router and $dns.

# shellcheck disable=SC2154 # variables are set by the functions that read into them
# shellcheck source=SCRIPTDIR/device.sh
. "${0%/*}/device.sh"
# shellcheck source=SCRIPTDIR/settings.sh
. "$BIN/settings.sh"
# shellcheck source=SCRIPTDIR/change.sh
. "$BIN/change.sh"

take_lease() {
  routers=${router:-$UNKNOWN_IPV4_ADDRESS}
  lease="${ip:?}?${subnet:?}?${routers%% *}"
  read_line lease_of_before "$DHCPV4_LEASE"
  if [ "$lease" != "$lease_of_before" ]; then
    clear_ipv4 && assign_ipv4 "$lease" && replace_file "$DHCPV4_LEASE" "$lease" || return
  fi
  take_name_servers "$DHCPV4_SERVERS" "${dns-}"
}

drop_lease() {
  rm -f "$DHCPV4_LEASE" && clear_ipv4 && drop_name_servers "$DHCPV4_SERVERS"
}

case ${1-} in
bound | renew) persist take_lease ;;
deconfig) persist drop_lease ;;
esac
