#!/bin/sh
# shellcheck disable=SC2317 # functions that signals call
# shellcheck disable=SC3045 # every shell that a Debian system has as /bin/sh sets the number of open files
# The web server as a service, in the foreground: webServer.sh CONFIGURATION
#
#   USR1   has it start anew by itself, with every socket that it listens on
#   HUP    ends it when the answers under way have gone out, and starts another one beside it at once: only so are sockets
#          given up
#   TERM   ends it at once
#
# Its user has no rights, so what it may open is settled here.

# By its path: else it could not start itself anew. That of the caller.
program=$(command -v lighttpd)
# shellcheck source=SCRIPTDIR/device.sh
. "${0%/*}/device.sh"

PROCESS=$RUN/webServer.pid
OPEN_FILES=8192 # as its configuration has it
TRIES=200       # of 50 ms: until the one of before has given up its sockets, on a busy machine, too

start_server() {
  as_user web "$program" -D -f "$configuration" &
  server=$!
}

# What a shell starts in the background ignores them, until it is a web server that is ready: one that is just starting would
# not be told, would go on and keep its sockets. It has no answers under way.
ignores_interrupts() {
  grep -q '^SigIgn:.*[2367abef]$' "/proc/$1/status" 2>/dev/null
}

# The one of before that last ended so is not waited for any longer.
replace_server() {
  again=
  [ -z "$leaving" ] || kill -TERM "$leaving" 2>/dev/null
  leaving=$server tries=$TRIES
  if ignores_interrupts "$leaving"; then kill -TERM "$leaving"; else kill -INT "$leaving"; fi 2>/dev/null
  start_server
}

# A signal may come in between, and start or end one itself: there is never one of which this does not know.
keep_serving() {
  keeping=yes
  [ -n "$ending" ] || kill -0 "$server" 2>/dev/null || start_server
  keeping=
  [ -z "$ending" ] || kill -TERM "$server" 2>/dev/null
  [ -z "$again" ] || replace_server
}

# Those that have started anew still answer what was under way, as children of the one that they have started.
answering() {
  cat "/proc/$server/task/$server/children" 2>/dev/null
}

[ $# = 1 ] || refuse_call 'CONFIGURATION' "$@"
configuration=$1 ending='' leaving='' keeping='' again='' tries=0 status=1
[ -n "$program" ] || fail 'there is no program lighttpd'
[ "$(ulimit -n)" = unlimited ] || [ "$(ulimit -n)" -ge "$OPEN_FILES" ] || ulimit -n "$OPEN_FILES" 2>/dev/null
# A second one that comes while it starts anew would end it.
trap 'tries=$TRIES; kill -USR1 "$server"' USR1
trap '[ -n "$ending" ] || if [ -n "$keeping" ]; then again=yes; else replace_server; fi' HUP
trap 'ending=yes; kill -TERM "$server" $leaving $(answering) 2>/dev/null' TERM
: >"$RUN/webServer.names" # as web_server.sh has it
start_server
(umask 022 && echo $$ >"$PROCESS")
while :; do
  # Every signal that is caught interrupts the waiting.
  while kill -0 "$server" 2>/dev/null; do
    wait "$server"
    status=$?
  done
  if [ -n "$ending" ] || [ "$tries" -le 0 ]; then break; fi
  tries=$((tries - 1))
  sleep 0.05
  keep_serving
done
rm -f "$PROCESS"
exit "$status"
