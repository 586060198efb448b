#!/bin/sh
# Reads and changes the IPv6 settings and the name servers.
#
#   -l                    "1" while addresses are made from router advertisements, else "0"
#   -L 1|0                switches that
#   -c -d on|off          switches DHCPv6
#   -c -s A/P?G           static settings: address, prefix length, gateway
#   -r                    removes the static settings
#   -g static             the static settings: A/P?G; nothing when there are none
#   -g all                the global addresses, joined by "?"
#   -g dns                the name servers, joined by a blank; "disabled" stands for a missing first one
#   -D "P S"              changes the name servers; each may be empty, and while both are, those that come
#                         with the leases are used
#
# All addressing takes effect only while IPv6 as a whole is enabled. Ends with 2 and a sentence on standard
# error when a value is wrong, with 44 when a name server lies in an internal network, with 1 when a right
# value could not be put into force. Then everything is as before.

# shellcheck disable=SC2154 # variables are set by the functions that read into them
# shellcheck source=SCRIPTDIR/device.sh
. "${0%/*}/device.sh"
# shellcheck source=SCRIPTDIR/settings.sh
. "$BIN/settings.sh"

SYNOPSIS='-l, -L 1|0, -c -d on|off, -c -s A/P?G, -r, -g static, -g all, -g dns, -D "P S"'

print_stateless() {
  read_setting stateless stateless
  printf '%s\n' "$stateless"
}

print_static() {
  read_setting static ipv6
  [ -z "$static" ] || printf '%s\n' "$static"
}

print_name_servers() {
  read_setting stored_servers dns
  primary=${stored_servers%% *} secondary=${stored_servers#* }
  printf '%s\n' "${primary:-disabled}${secondary:+ $secondary}"
}

# From the kernel's own table, sorted: it comes in no order that lasts.
print_addresses() {
  sorted=
  while read -r digits _ _ scope _ interface; do
    [ "$interface $scope" = "$PRIMARY 00" ] && insert_sorted "$digits"
  done </proc/net/if_inet6
  addresses=
  for digits in $sorted; do
    write_address "$digits"
    addresses=$addresses${addresses:+\?}$address
  done
  [ -z "$addresses" ] || printf '%s\n' "$addresses"
}

# insert_sorted WORD: puts the word at its place among the words of $sorted, unless it is there.
insert_sorted() {
  new=$1
  before=
  for word in $sorted; do
    # shellcheck disable=SC3012 # every shell that a Debian system has as /bin/sh compares texts
    if [ "$word" \> "$new" ]; then
      before="$before $new" new=$word
    elif [ "$word" = "$new" ]; then
      return
    else
      before="$before $word"
    fi
  done
  sorted="$before $new"
}

# write_address DIGITS: the address of 32 hexadecimal digits as it is usually written, in $address: groups
# without leading zeros, the longest run of zero groups as "::".
write_address() {
  digits=$1
  address=
  while [ -n "$digits" ]; do
    rest=${digits#????}
    group=${digits%"$rest"}
    group=${group#"${group%%[!0]*}"}
    address=$address:${group:-0}
    digits=$rest
  done
  zeros=:0:0:0:0:0:0:0:0
  while [ "$zeros" != :0 ]; do
    case $address: in
    *"$zeros:"*)
      address=$address:
      before=${address%%"$zeros:"*} after=${address#*"$zeros:"}
      address=${before#:}::${after%:}
      return
      ;;
    esac
    zeros=${zeros#:0}
  done
  address=${address#:}
}

switch_stateless() {
  case $1 in 0 | 1) ;; *) refuse 'stateless addressing' "$1" 'is neither 1 nor 0' ;; esac
  lock_settings
  change_setting stateless "$1" apply_ipv6
}

switch_dhcpv6() {
  case $1 in on | off) ;; *) refuse 'DHCPv6' "$1" 'is neither on nor off' ;; esac
  lock_settings
  change_setting dhcpv6 "$1" apply_ipv6
}

set_static() {
  check_settings ipv6 "$1"
  lock_settings
  change_setting ipv6 "$1" apply_static_ipv6
}

remove_static() {
  lock_settings
  change_setting ipv6 '' apply_static_ipv6
}

# A single server is the primary one.
set_name_servers() {
  case $1 in
  *' '*) servers=$1 ;;
  *) servers="$1 " ;;
  esac
  check_settings dns "$servers"
  lock_settings
  change_setting dns "$servers" apply_name_servers
}

refuse_overlong "$@"
case "$# $*" in
'1 -l') print_stateless ;;
'2 -g static') print_static ;;
'2 -g all') print_addresses ;;
'2 -g dns') print_name_servers ;;
'1 -r') change remove_static ;;
*)
  case "$# ${1-}" in
  '2 -L') change switch_stateless "$2" ;;
  '2 -D') change set_name_servers "$2" ;;
  '3 -c')
    case $2 in
    -d) change switch_dhcpv6 "$3" ;;
    -s) change set_static "$3" ;;
    *) refuse_call "$SYNOPSIS" "$@" ;;
    esac
    ;;
  *) refuse_call "$SYNOPSIS" "$@" ;;
  esac
  ;;
esac
