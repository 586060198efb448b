#!/bin/sh
# What becomes of the DHCPv6 client's news. Called by dhcpcd with the event in $reason; the address is the
# client's own business.

# shellcheck disable=SC2154 # variables are set by the functions that read into them
# shellcheck source=SCRIPTDIR/device.sh
. "${0%/*}/device.sh"
# shellcheck source=SCRIPTDIR/settings.sh
. "$BIN/settings.sh"
# shellcheck source=SCRIPTDIR/change.sh
. "$BIN/change.sh"

case ${reason-} in
BOUND6 | REBOOT6 | RENEW6 | REBIND6)
  persist take_name_servers "$DHCPV6_SERVERS" "${new_dhcp6_name_servers-}"
  ;;
EXPIRE6 | RELEASE6 | STOP6) persist drop_name_servers "$DHCPV6_SERVERS" ;;
esac
