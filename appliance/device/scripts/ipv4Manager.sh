#!/bin/sh
# Reads and changes the host name, the IPv4 settings and the link of the secondary port.
#
#   -d status             the lease: address?netmask?gateway; "??" while DHCP is off
#   -g static             the static settings: address?netmask?gateway
#   -g host               the host name
#   -g port               the link: autonegotiation?speed?duplex
#   -c -d on              takes the settings from a DHCP server
#   -c -s A?M?G           static settings: address, netmask, gateway
#   -n NAME               changes the host name
#   -P A?S?D              the link: on or off, 10 or 100, half or full
#
# Ends with 2 and a sentence on standard error when a value is wrong, with 1 when a right one could not be
# put into force. Then everything is as before.

# shellcheck source=SCRIPTDIR/device.sh
. "${0%/*}/device.sh"

SYNOPSIS='-d status, -g static, -g host, -g port, -c -d on, -c -s A?M?G, -n NAME, -P A?S?D'

print_lease() {
  read_setting ipv4
  case $line in
  dhcp\ *) read_line "$DHCPV4_LEASE" "$UNKNOWN_IPV4" ;;
  *) line=$ABSENT_IPV4 ;;
  esac
  printf '%s\n' "$line"
}

print_static() {
  read_setting ipv4
  printf '%s\n' "${line#* }"
}

print_host_name() {
  line=
  in_place && read_setting hostname
  [ -n "$line" ] || read_line /proc/sys/kernel/hostname
  printf '%s\n' "$line"
}

print_port() {
  read_setting port
  printf '%s\n' "$line"
}

# The static settings stay known while DHCP is on.
switch_dhcp_on() {
  read_setting ipv4
  change_setting ipv4 "dhcp ${line#* }" apply_ipv4
}

set_static() {
  split_fields "$1" || refuse 'the settings' "$1" 'are not address?netmask?gateway'
  require_host 'the address' "$field1"
  is_ipv4 "$field2" || refuse 'the netmask' "$field2" 'is no IPv4 netmask'
  require_host 'the gateway' "$field3"
  read_netmask "$field2"
  require_own_address 'the address' "$field1"
  same_prefix $((96 + length)) "$field1" "$field3" ||
    refuse 'the gateway' "$field3" "is outside the network of $field1 with the netmask $field2"
  require_own_address 'the gateway' "$field3"
  [ "$field1" != "$field3" ] || refuse 'the gateway' "$field3" 'is the address itself'
  change_setting ipv4 "static $1" apply_ipv4
}

# require_host WHAT VALUE
require_host() {
  is_ipv4 "$2" || refuse "$1" "$2" 'is no IPv4 address'
  is_host_address "$2" || refuse "$1" "$2" 'cannot be the address of a host'
}

# read_netmask NETMASK: the bits of the host part in $host_bits, the length of the network's in $length.
read_netmask() {
  address_bits "$1"
  host_bits=$((~low & 0xffffffff))
  [ $((host_bits & (host_bits + 1))) = 0 ] || refuse 'the netmask' "$1" 'has a gap in its ones'
  [ "$host_bits" != $((0xffffffff)) ] || refuse 'the netmask' "$1" 'leaves nothing for the network'
  length=32 rest=$host_bits
  while [ "$rest" -gt 0 ]; do
    length=$((length - 1)) rest=$((rest >> 1))
  done
}

# require_own_address WHAT VALUE: the first and the last address of a network stand for all of it, except
# where it has no others.
require_own_address() {
  address_bits "$2"
  case $((low & host_bits)) in
  0 | "$host_bits") [ "$host_bits" -le 1 ] || refuse "$1" "$2" "stands for the whole network with the netmask $field2" ;;
  esac
}

set_host_name() {
  case $1 in
  '') refuse 'the host name' "$1" 'is empty' ;;
  *[!A-Za-z0-9.-]*) refuse 'the host name' "$1" 'has characters other than letters, digits, hyphens and dots' ;;
  esac
  [ ${#1} -le 64 ] || refuse 'the host name' "$1" 'is longer than 64 characters'
  case .$1. in
  *..*) refuse 'the host name' "$1" 'has an empty part' ;;
  *.-* | *-.*) refuse 'the host name' "$1" 'has a part that starts or ends with a hyphen' ;;
  esac
  case $1 in
  *.*) ;;
  *) [ ${#1} -lt 64 ] || refuse 'the host name' "$1" 'has a part longer than 63 characters' ;;
  esac
  change_setting hostname "$1" apply_host_name
}

set_port() {
  split_fields "$1" || refuse 'the port settings' "$1" 'are not autonegotiation?speed?duplex'
  case $field1 in on | off) ;; *) refuse 'the autonegotiation' "$field1" 'is neither on nor off' ;; esac
  case $field2 in 10 | 100) ;; *) refuse 'the speed' "$field2" 'is neither 10 nor 100' ;; esac
  case $field3 in half | full) ;; *) refuse 'the duplex' "$field3" 'is neither half nor full' ;; esac
  change_setting port "$1" apply_port
}

refuse_overlong "$@"
case "$# $*" in
'2 -d status') print_lease ;;
'2 -g static') print_static ;;
'2 -g host') print_host_name ;;
'2 -g port') print_port ;;
'3 -c -d on') change switch_dhcp_on ;;
*)
  case "$# ${1-}" in
  '2 -n') change set_host_name "$2" ;;
  '2 -P') change set_port "$2" ;;
  '3 -c')
    [ "$2" = -s ] || refuse_call "$SYNOPSIS" "$@"
    change set_static "$3"
    ;;
  *) refuse_call "$SYNOPSIS" "$@" ;;
  esac
  ;;
esac
