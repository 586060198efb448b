#!/bin/sh
# Asks for the addresses of a name, or for the name of an address: lookUpName.sh NAME
# Prints them, a line each; nothing where there is none. Ends with 3 while another question is asked, and with 4 when no
# server has answered in time. "lookUpName.sh -q" asks nothing and ends with 0 where the device can look names up.
# shellcheck source=SCRIPTDIR/device.sh
. "${0%/*}/device.sh"
# shellcheck source=SCRIPTDIR/network_question.sh
. "$BIN/network_question.sh"

SILENT=4
NOT_FOUND=2      # of getent
OUT_OF_TIME=124 # of timeout

[ $# = 1 ] || refuse_call 'NAME | -q' "$@"
refuse_overlong "$@"
has_program getent || exit 1
[ "$1" != -q ] || exit 0
behind_the_door "$@"
case $1 in
*:*) kind=address ;;
*[!0-9.]*) kind=name ;;
*) kind=address ;;
esac
if [ "$kind" = address ]; then
  judge_address "$1"
  set -- hosts "$1"
else
  "$BIN/checkSettings" host-name "$1" || exit 2
  set -- ahosts "$1"
fi
one_at_a_time
said=$(within_time as_user pages getent "$@")
status=$?
case $status in
0) ;;
"$NOT_FOUND") exit 0 ;;
"$OUT_OF_TIME") exit "$SILENT" ;;
*) fail "the name cannot be looked up: $said" ;;
esac
# Each line has the address first, then names; an address stands there once for each kind of connection.
printf '%s\n' "$said" | {
  printed=' '
  while read -r address names; do
    if [ "$kind" = address ]; then
      for name in $names; do printf '%s\n' "$name"; done
    else
      case $printed in *" $address "*) continue ;; esac
      printed="$printed$address "
      printf '%s\n' "$address"
    fi
  done
}
