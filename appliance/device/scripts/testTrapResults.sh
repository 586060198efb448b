#!/bin/sh
# Prints what became of the last test traps: "time SECONDS" since 1970, then a line for each receiver and version of traps,
# RECEIVER VERSION OUTCOME. Receivers are in the agent's notation, as udp:10.20.0.1:162. The outcomes:
#
#   sent         by UDP, of which no answer tells more
#   connected    by TCP, and the other side has taken it
#   refused      the other side says that nobody listens there
#   unreachable  it could not be sent, or nobody took the connection in time
# shellcheck source=SCRIPTDIR/device.sh
. "${0%/*}/device.sh"

[ $# = 0 ] || refuse_call 'none' "$@"
[ -f "$TEST_RESULTS" ] && [ -r "$TEST_RESULTS" ] && exec cat "$TEST_RESULTS"
exit 1
