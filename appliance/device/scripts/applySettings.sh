#!/bin/sh
# Puts all stored settings into force. Run once when the appliance starts; what fails is said, and the rest
# is put into force all the same.

# shellcheck source=SCRIPTDIR/device.sh
. "${0%/*}/device.sh"
# shellcheck source=SCRIPTDIR/apply.sh
. "$BIN/apply.sh"

lock_settings
status=0
for apply in apply_host_name apply_port apply_dhcpv6 apply_ipv4 apply_name_servers; do
  "$apply" || {
    complain "$apply failed"
    status=1
  }
done
exit $status
