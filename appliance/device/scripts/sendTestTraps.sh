#!/bin/sh
# Starts the SNMP agent anew, then sends a test trap to every registered receiver in each version of traps
# that is on, to all at the same time. Exit status 0 only when all could be sent. What became of each is kept for
# testTrapResults.sh, which says what the words mean.
# shellcheck source=SCRIPTDIR/device.sh
. "${0%/*}/device.sh"
# shellcheck source=SCRIPTDIR/management.sh
. "$BIN/management.sh"
# shellcheck source=SCRIPTDIR/snmp.sh
. "$BIN/snmp.sh"

RESULTS_OF_NOW=$TEST_RESULTS.$$
CLOSED='Nothing listens at this port.'

# test_receiver VERSION RECEIVER: prints what is wrong, and the line of the results behind the word "result". Both questions
# take their time at once.
test_receiver() {
  said=$(
    { ! is_port_closed "$2" || line "$CLOSED"; } &
    send_test_trap "$1" "$2" 2>&1
    wait
  )
  wrong=$(line "$said" | grep -vxF -e "$CLOSED" -e '')
  [ -z "$wrong" ] || line "$wrong"
  case $2,$wrong,$said in
  *"$CLOSED"*) outcome=refused ;;
  tcp*,,*) outcome=connected ;;
  udp*,,*) outcome=sent ;;
  *) outcome=unreachable ;;
  esac
  line "result $2 $1 $outcome"
}

# keep_results BEGAN RESULTS: all of them or, where there is no room, none.
keep_results() {
  [ ! -d "$TEST_RESULTS" ] && (printf 'time %s\n%s\n' "$1" "$2" >"$RESULTS_OF_NOW" &&
    mv -f "$RESULTS_OF_NOW" "$TEST_RESULTS") 2>/dev/null
}

# is_port_closed RECEIVER: whether the other side says so, within half a second of the question. Who sends a trap by UDP is not told
# that, so the port gets an empty datagram, for whose answer is waited.
is_port_closed() {
  case $1 in
  udp*) port="UDP${1#udp},shut-null" ;;
  *) port="TCP${1#tcp}" ;;
  esac
  case $(timeout 2 socat -t 0.5 - "$port" </dev/null 2>&1) in
  *'Connection refused'*) return 0 ;;
  *) return 1 ;;
  esac
}

[ $# = 0 ] || refuse_call 'none' "$@"
rm -f "$TEST_RESULTS" 2>/dev/null
restart_agent # sets receivers, trap1 and trap2
[ -n "$receivers" ] || exit 0
[ "$trap1$trap2" != 00 ] || fail 'no version of traps is on: nothing can be sent to the registered receivers'
trap 'rm -f "$RESULTS_OF_NOW"' EXIT
began=$(date +%s)
said=$(
  for receiver in $receivers; do
    [ "$trap1" = 0 ] || test_receiver 1 "$receiver" &
    [ "$trap2" = 0 ] || test_receiver 2c "$receiver" &
  done 2>/dev/null
  wait
)
keep_results "$began" "$(line "$said" | sed -n 's/^result //p')" || complain 'what became of each trap cannot be kept'
unsent=$(line "$said" | grep -v '^result ')
[ -z "$unsent" ] || fail "$unsent"
