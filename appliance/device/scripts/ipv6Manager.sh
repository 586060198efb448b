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

# shellcheck source=SCRIPTDIR/device.sh
. "${0%/*}/device.sh"

SYNOPSIS='-l, -L 1|0, -c -d on|off, -c -s A/P?G, -r, -g static, -g all, -g dns, -D "P S"'
INTERNAL_ADDRESS=44

print_stateless() {
  read_setting stateless
  printf '%s\n' "$line"
}

print_static() {
  read_setting ipv6
  [ -z "$line" ] || printf '%s\n' "$line"
}

print_name_servers() {
  read_setting dns
  primary=${line%% *} secondary=${line#* }
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
  change_setting stateless "$1" apply_ipv6
}

switch_dhcpv6() {
  case $1 in on | off) ;; *) refuse 'DHCPv6' "$1" 'is neither on nor off' ;; esac
  change_setting dhcpv6 "$1" apply_dhcpv6
}

set_static() {
  split_static "$1" || refuse 'the settings' "$1" 'are not address/prefix?gateway'
  require_host 'the address' "$address"
  ! is_link_local "$address" || refuse 'the address' "$address" "is link-local, and $PRIMARY has one of its own"
  case $prefix in
  [1-9] | [1-9][0-9] | 1[01][0-9] | 12[0-8]) ;;
  *) refuse 'the prefix length' "$prefix" 'is not a number from 1 to 128' ;;
  esac
  require_host 'the gateway' "$gateway"
  is_link_local "$gateway" || same_prefix "$prefix" "$address" "$gateway" ||
    refuse 'the gateway' "$gateway" "is neither link-local nor inside $address/$prefix"
  ! same_prefix 128 "$address" "$gateway" || refuse 'the gateway' "$gateway" 'is the address itself'
  change_setting ipv6 "$1" apply_static_ipv6
}

# split_static SETTINGS: their parts in $address, $prefix and $gateway.
split_static() {
  case $1 in
  *\?*\?* | */*/*) return 1 ;;
  */*\?*) ;;
  *) return 1 ;;
  esac
  gateway=${1#*\?}
  address=${1%%/*}
  prefix=${1%\?*}
  prefix=${prefix#*/}
}

# require_host WHAT VALUE
require_host() {
  is_ipv6 "$2" || refuse "$1" "$2" 'is no IPv6 address'
  is_host_address "$2" || refuse "$1" "$2" 'cannot be the address of a host'
}

is_link_local() {
  same_prefix 10 "$1" fe80::
}

remove_static() {
  change_setting ipv6 '' apply_static_ipv6
}

set_name_servers() {
  case $1 in *' '*) secondary=${1#* } ;; *) secondary= ;; esac
  primary=${1%% *}
  for server in "$primary" "$secondary"; do
    [ -n "$server" ] || continue
    is_ipv4 "$server" || is_ipv6 "$server" || refuse 'the name server' "$server" 'is no IPv4 or IPv6 address'
    ! internal_network_of "$server" || {
      complain "the name server \"$server\" lies in the internal network $network"
      exit $INTERNAL_ADDRESS
    }
    is_host_address "$server" || refuse 'the name server' "$server" 'cannot be the address of a host'
  done
  change_setting dns "$primary $secondary" apply_name_servers
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
