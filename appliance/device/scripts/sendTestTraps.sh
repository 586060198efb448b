#!/bin/sh
# Starts the SNMP agent anew, then sends a test trap to every registered receiver in each version of traps
# that is on, to all at the same time. Exit status 0 only when all could be sent.
# shellcheck source=SCRIPTDIR/device.sh
. "${0%/*}/device.sh"
# shellcheck source=SCRIPTDIR/management.sh
. "$BIN/management.sh"
# shellcheck source=SCRIPTDIR/snmp.sh
. "$BIN/snmp.sh"

[ $# = 0 ] || refuse_call 'none' "$@"
restart_agent # sets receivers, trap1 and trap2
[ -n "$receivers" ] || exit 0
[ "$trap1$trap2" != 00 ] || fail 'no version of traps is on: nothing can be sent to the registered receivers'
unsent=$(
  for receiver in $receivers; do
    [ "$trap1" = 0 ] || send_test_trap 1 "$receiver" &
    [ "$trap2" = 0 ] || send_test_trap 2c "$receiver" &
  done 2>&1
  wait
)
[ -z "$unsent" ] || fail "$unsent"
