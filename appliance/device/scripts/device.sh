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
USERS=$RUN/users # who runs what talks to strangers, where there are users for that: lines "NAME USER GROUP", in numbers
DOOR=$RUN/door   # through which they have the device's own scripts run by root; is there only where it is needed
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

# behind_the_door ARGUMENT...: for a script that needs root's rights and that the web service calls: becomes the same script,
# run by who has them. Who may not knock goes on without the rights, and who has them, as at a start, needs no door.
behind_the_door() {
  [ -n "${BEHIND_THE_DOOR-}" ] || [ ! -S "$DOOR" ] || [ ! -w "$DOOR" ] || has_rights ||
    exec /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh "$0" "$@"
}

# find_user NAME: sets user and group to the numbers of the line. Fails when there is none.
find_user() {
  [ -r "$USERS" ] || return
  while read -r name user group; do
    [ "$name" != "$1" ] || return 0
  done <"$USERS"
  return 1
}

# as_user NAME COMMAND...: becomes the command, run by that user and without any right of root's. Where there is no such
# user it stays the one it is, but without the rights.
as_user() {
  unset BEHIND_THE_DOOR # what it starts has no more rights than it has
  if find_user "$1"; then
    shift
    with_rights '' --reuid="$user" --regid="$group" --clear-groups "$@"
  else
    shift
    with_rights '' "$@"
  fi
}

# with_rights RIGHTS [OPTION...] COMMAND...: becomes the command with these rights of root's (",+net_raw,+net_admin") and
# no others; it cannot get more by any program that it starts. With the options of setpriv, if any.
with_rights() {
  rights=$1
  shift
  if has_rights && command -v setpriv >/dev/null; then
    exec setpriv --no-new-privs --inh-caps=-all --bounding-set="-all$rights" "$@"
  fi
  while case $1 in --*) ;; *) false ;; esac; do shift; done
  exec "$@"
}

# Whether there are any to be given up.
has_rights() {
  while read -r name value; do
    [ "$name" != CapEff: ] || { [ "$value" != 0000000000000000 ] && return; }
  done </proc/self/status
  return 1
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

# read_host_name VARIABLE: the one in force. The shell reads byte after byte, and the kernel may get another name in between:
# only what was read twice alike is one name.
read_host_name() {
  host_name_again=
  read_line "$1" /proc/sys/kernel/hostname
  read_line host_name_again /proc/sys/kernel/hostname
  while eval "[ \"\$$1\" != \"\$host_name_again\" ]"; do
    set_variable "$1" "$host_name_again"
    read_line host_name_again /proc/sys/kernel/hostname
  done
}
