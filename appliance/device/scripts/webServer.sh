#!/bin/sh
# The web server as a service, in the foreground: webServer.sh CONFIGURATION
#
# When it starts anew by itself it keeps every socket that it listens on. To give one up it has to end, and is
# started again from here.
#
#   HUP    ends it when the answers under way have gone out, and starts it again
#   TERM   ends it at once

trap '[ -n "$ending" ] || again=yes; kill -INT "$server"' HUP
trap 'ending=yes again=; kill -TERM "$server"' TERM
again=yes ending='' status=1
while [ -n "$again" ]; do
  again=
  lighttpd -D -f "$1" &
  server=$!
  # Every signal that is caught interrupts the waiting.
  while kill -0 "$server" 2>/dev/null; do
    wait "$server"
    status=$?
  done
done
exit "$status"
