#!/bin/sh
# Starts the SNMP agent anew with the settings of the management database. Exit status 0 only when the
# agent answers.
# shellcheck source=SCRIPTDIR/device.sh
. "${0%/*}/device.sh"

[ $# = 0 ] || refuse_call 'none' "$@"
behind_the_door "$@"
# shellcheck source=SCRIPTDIR/management.sh
. "$BIN/management.sh"
# shellcheck source=SCRIPTDIR/snmp.sh
. "$BIN/snmp.sh"

restart_agent
