#!/bin/sh
# Becomes a command without root's rights: asUser.sh NAME COMMAND...
# Run by the user NAME of the file that device.sh names; where there is none, by the user that it is called by.
# The command is searched in the path that this is called with.
program=$(command -v "${2-}")
# shellcheck source=SCRIPTDIR/device.sh
. "${0%/*}/device.sh"

[ $# -ge 2 ] || refuse_call 'NAME COMMAND...' "$@"
[ -n "$program" ] || fail "there is no program $2"
name=$1
shift 2
umask 077 # what it makes is its own
as_user "$name" "$program" "$@"
