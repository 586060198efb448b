#!/bin/sh
# Prints the newest changes of the audit trail, newest first: time, user, operation, values and result of each,
# with the ASCII unit separator between fields and the record separator behind each change, so that any value
# can be told from the next.
# shellcheck source=SCRIPTDIR/device.sh
. "${0%/*}/device.sh"
# shellcheck source=SCRIPTDIR/management.sh
. "$BIN/management.sh"

# A page keeps 500 changes, and the services note three operations for one of the SNMP agent.
COUNT=1500

[ $# = 0 ] || refuse_call 'none' "$@"
[ -s "$DATABASE" ] || exit 0 # nothing was changed yet
as_its_owner sqlite3 -readonly -batch -ascii -cmd '.timeout 10000' "$DATABASE" \
  "SELECT time, user, operation, \"values\", result FROM audit ORDER BY number DESC LIMIT $COUNT"
