#!/bin/sh
# shellcheck disable=SC3045 # every shell that a Debian system has as /bin/sh sets the number of open files
# The web server as a service, in the foreground: webServer.sh CONFIGURATION
#
#   USR1, HUP  put another one, with the configuration as it is now, in its place: no connection is lost, and answers under
#              way go out
#   TERM       ends it at once
#
# Its user has no rights, so what it may open is settled here.

# By its path: another one is started later. That of the caller.
program=$(command -v lighttpd)
# shellcheck source=SCRIPTDIR/device.sh
. "${0%/*}/device.sh"

OPEN_FILES=8192 # as its configuration has it

[ $# = 1 ] || refuse_call 'CONFIGURATION' "$@"
[ -n "$program" ] || fail 'there is no program lighttpd'
[ "$(ulimit -n)" = unlimited ] || [ "$(ulimit -n)" -ge "$OPEN_FILES" ] || ulimit -n "$OPEN_FILES" 2>/dev/null
: >"$RUN/webServer.names" # as web_server.sh has it
exec "$BIN/keepWebServer" "$RUN/webServer.pid" "${1%/*}/mode.conf" /bin/sh "$BIN/asUser.sh" web "$program" -D -f "$1"
