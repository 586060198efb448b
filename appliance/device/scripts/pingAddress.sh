#!/bin/sh
# Asks another device for an answer, three times: pingAddress.sh ADDRESS
# Prints a line each, name and value: "sent" and "received" count, "milliseconds" is the average time of an answer, "error" is
# what the network says against it. Ends with 1 when it could not ask, and with 3 while another question is asked.
# "pingAddress.sh -q" asks nothing and ends with 0 where the device can ping.
# shellcheck source=SCRIPTDIR/device.sh
. "${0%/*}/device.sh"
# shellcheck source=SCRIPTDIR/network_question.sh
. "$BIN/network_question.sh"

[ $# = 1 ] || refuse_call 'ADDRESS | -q' "$@"
refuse_overlong "$@"
has_program ping || exit 1
[ "$1" != -q ] || exit 0
behind_the_door "$@"
judge_address "$1"
one_at_a_time
# A link-local address needs the port.
case $1 in [fF][eE][89aAbB]?:*) port="-I $PRIMARY" ;; *) port= ;; esac
# shellcheck disable=SC2086 # none or two words
said=$(within_time with_rights ,+net_raw ping -n -c 3 -i 0.5 -W 1 $port "$1")
status=$?
answer=$(printf '%s\n' "$said" |
  sed -n -e 's/^\([0-9]*\) packets transmitted, \([0-9]*\).* received.*/sent \1\nreceived \2/p' \
    -e 's/^\(rtt\|round-trip\)[^=]*= [0-9.]*\/\([0-9.]*\).*/milliseconds \2/p' \
    -e 's/^From .* icmp_seq=1 \(Destination .*\)/error \1/p' -e 's/^\(ping: \)\{0,1\}connect: /error /p')
[ -z "$answer" ] || printf '%s\n' "$answer"
case ${answer:+said}$status in
said*) ;;
124 | 137 | 143) ;; # ended by the time: it has had no answer
*) fail "it could not be asked: $(shown "$said")" ;;
esac
