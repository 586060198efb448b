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

# shellcheck disable=SC2154 # variables are set by the functions that read into them
# shellcheck source=SCRIPTDIR/device.sh
. "${0%/*}/device.sh"
# shellcheck source=SCRIPTDIR/settings.sh
. "$BIN/settings.sh"

SYNOPSIS='-d status, -g static, -g host, -g port, -c -d on, -c -s A?M?G, -n NAME, -P A?S?D'

print_lease() {
  read_setting ipv4 ipv4
  case $ipv4 in
  dhcp\ *) read_line lease "$DHCPV4_LEASE" '0.0.0.0?0.0.0.0?0.0.0.0' ;;
  *) lease=$ABSENT_IPV4 ;;
  esac
  printf '%s\n' "$lease"
}

print_static() {
  read_setting ipv4 ipv4
  printf '%s\n' "${ipv4#* }"
}

print_host_name() {
  name=
  ! in_place || read_setting name hostname
  [ -n "$name" ] || read_host_name name
  printf '%s\n' "$name"
}

print_port() {
  read_setting port port
  printf '%s\n' "$port"
}

# The static settings stay known while DHCP is on.
switch_dhcp_on() {
  lock_settings
  read_setting ipv4 ipv4
  change_setting ipv4 "dhcp ${ipv4#* }" apply_ipv4
}

set_static() {
  check_settings ipv4 "$1"
  lock_settings
  change_setting ipv4 "static $1" apply_ipv4
}

set_host_name() {
  check_settings host-name "$1"
  lock_settings
  change_setting hostname "$1" apply_host_name
}

set_port() {
  case $1 in
  *\?*\?*\?*) false ;;
  *\?*\?*) ;;
  *) false ;;
  esac || refuse 'the port settings' "$1" 'are not autonegotiation?speed?duplex'
  autonegotiation=${1%%\?*}
  duplex=${1##*\?}
  speed=${1#*\?}
  speed=${speed%\?*}
  case $autonegotiation in on | off) ;; *) refuse 'the autonegotiation' "$autonegotiation" 'is neither on nor off' ;; esac
  case $speed in 10 | 100) ;; *) refuse 'the speed' "$speed" 'is neither 10 nor 100' ;; esac
  case $duplex in half | full) ;; *) refuse 'the duplex' "$duplex" 'is neither half nor full' ;; esac
  lock_settings
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
