# What the device scripts share: where things are, and how they say what is wrong. Sourced by the scripts
# beside it, which are called by their full path.
# shellcheck shell=sh disable=SC2034 # for those that source this

set -fu
umask 022
export LC_ALL=C PATH=/usr/sbin:/usr/bin:/sbin:/bin

BIN=${0%/*}
APP_MANAGER=${BIN%/bin}
LIBRARY=${APP_MANAGER%/AppManager}

SETTINGS=$APP_MANAGER/dat
IN_PLACE=$SETTINGS/in-place # while it exists, settings are stored but not put into force
IPV6_ENABLED=$LIBRARY/CoreService/dat/ipv6Enabled
PRIMARY=eth0
SECONDARY=eth2

# What is learned and made while the device runs: gone after a restart.
RUN=/run/appmanager
DHCPV4_LEASE=$RUN/dhcpv4.lease
DHCPV4_LEASE_FACTS=$RUN/dhcpv4.lease.facts # its server, and its end in seconds since the start, or "never"
TEST_RESULTS=$RUN/test-traps # what became of the last test traps

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

# set_variable VARIABLE TEXT
set_variable() {
  eval "$1=\$2"
}

# read_line VARIABLE FILE [DEFAULT]: the first line of the file, or the default, into the variable.
read_line() {
  set_variable "$1" "${3-}"
  [ ! -f "$2" ] || [ ! -r "$2" ] || IFS= read -r "$1" <"$2"
}
