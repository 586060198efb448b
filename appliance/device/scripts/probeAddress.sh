#!/bin/sh
# Says whether a device on the network of the first port answers under an address: probeAddress.sh ADDRESS
# Prints "answers" or "silent"; ends with 1 and prints nothing where that cannot be told.
# shellcheck source=SCRIPTDIR/device.sh
. "${0%/*}/device.sh"

WAIT=2 # seconds

# It asks the way a device does that looks whether an address is free: no address of our own is told, and none is needed. Programs of
# this name differ in what they end with, and one without the rights for it ends like one that was answered: what counts is what
# they say.
probe_ipv4() {
  if command -v arping >/dev/null; then
    said=$(arping -D -c 2 -w "$WAIT" -I "$PRIMARY" "$1" 2>/dev/null)
  else
    said=$(busybox arping -D -c 2 -w "$WAIT" -I "$PRIMARY" "$1" 2>/dev/null)
  fi
  case $said in
  *"eply from $1 "* | *"bytes from "*"($1)"*) echo answers ;;
  *'eceived 0 '* | *' 0 packets received'* | *'100% packet loss'*) echo silent ;;
  *) exit 1 ;;
  esac
}

probe_ipv6() {
  [ -e "$IPV6_ENABLED" ] && ip -6 address show dev "$PRIMARY" scope link | grep -q inet6 || exit 1
  # Whoever has the address tells its neighbours so, also when it answers no ping.
  ping -6 -q -c 1 -w "$WAIT" -I "$PRIMARY" "$1" >/dev/null 2>&1
  case $(ip -6 neighbour show "$1" dev "$PRIMARY") in
  *lladdr*) echo answers ;;
  *) echo silent ;;
  esac
}

[ $# = 1 ] || refuse_call 'ADDRESS' "$@"
refuse_overlong "$@"
behind_the_door "$@"
! in_place || exit 1
command -v ip >/dev/null || exit 1
case $1 in
*[!0-9a-f:.]* | '' | [:.]*) refuse 'the address' "$1" 'is none' ;;
*:*) probe_ipv6 "$1" ;;
*[!0-9.]*) refuse 'the address' "$1" 'is none' ;;
*) command -v arping >/dev/null || command -v busybox >/dev/null || exit 1
  probe_ipv4 "$1" ;;
esac
