# What the device scripts share: where things are, reading settings, and refusing values. Sourced by the
# scripts beside it, which are called by their full path.
#
# A setting is one line in one file below $SETTINGS. Reading one takes no lock and starts no process;
# apply.sh is what changes them.
# shellcheck shell=sh

set -fu
umask 022
export LC_ALL=C PATH=/usr/sbin:/usr/bin:/sbin:/bin

BIN=${0%/*}
APP_MANAGER=${BIN%/bin}
LIBRARY=${APP_MANAGER%/AppManager}

SETTINGS=$APP_MANAGER/dat
IN_PLACE=$SETTINGS/in-place # while it exists, settings are stored but not put into force
INTERNAL_NETWORKS=$APP_MANAGER/etc/internal_networks
IPV6_ENABLED=$LIBRARY/CoreService/dat/ipv6Enabled
IPV6_DHCP=/etc/ipv6dhcp
RESOLVER=/etc/resolv.conf
PRIMARY=eth0
SECONDARY=eth2

# What the DHCP clients have learned: gone after a restart, as they are.
RUN=/run/appmanager
DHCPV4_LEASE=$RUN/dhcpv4.lease
DHCPV4_SERVERS=$RUN/dhcpv4.dns
DHCPV6_SERVERS=$RUN/dhcpv6.dns

ABSENT_IPV4='??'
UNKNOWN_IPV4='0.0.0.0?0.0.0.0?0.0.0.0'

complain() {
  printf '%s: %s\n' "${0##*/}" "$1" >&2
}

fail() {
  complain "$1"
  exit 1
}

# refuse WHAT VALUE REASON: ends the script because of a wrong value.
refuse() {
  complain "$1 \"$(shown "$2")\" $3"
  exit 2
}

# A value as it may stand in a sentence: short, on one line, in whole characters.
shown() {
  printf '%.100s' "$1" | tr '\001-\037\177' '?' | iconv -c -f UTF-8 -t UTF-8 2>/dev/null
  [ ${#1} -le 100 ] || printf '...'
}

# refuse_call SYNOPSIS ARGUMENT...: ends the script because of its options.
refuse_call() {
  synopsis=$1
  shift
  refuse 'the options' "$*" "are none of: $synopsis"
}

# refuse_overlong ARGUMENT...: no right value is that long, and taking a very long text apart takes very long.
refuse_overlong() {
  for argument; do
    [ ${#argument} -le 200 ] || refuse 'the argument' "$argument" 'is longer than any setting'
  done
}

in_place() {
  [ -e "$IN_PLACE" ]
}

# read_line FILE [DEFAULT]: the first line of the file, or the default, in $line.
read_line() {
  line=${2-}
  [ ! -r "$1" ] || IFS= read -r line <"$1"
}

# read_setting NAME: the setting, or what a new appliance starts with, in $line.
read_setting() {
  case $1 in
  ipv4) read_line "$SETTINGS/$1" "dhcp $ABSENT_IPV4" ;; # "dhcp" or "static", and the static settings
  port) read_line "$SETTINGS/$1" 'on?100?full' ;;
  stateless) read_line "$SETTINGS/$1" 1 ;;
  dhcpv6) read_line "$SETTINGS/$1" off ;;
  dns) read_line "$SETTINGS/$1" ' ' ;; # primary, blank, secondary; each may be empty
  *) read_line "$SETTINGS/$1" ;;       # "hostname" and "ipv6", the static settings: empty when there are none
  esac
}

# change COMMAND...: only a change needs what changing takes.
change() {
  # shellcheck source=SCRIPTDIR/apply.sh
  . "$BIN/apply.sh"
  "$@"
}
