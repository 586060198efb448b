#!/bin/sh
# Starts the process that waits for the end of a change on trial, and puts the settings of before back when nobody was back in
# time. It takes everything from the record of the pages, lives in a session of its own, and outlives the web server and
# the interpreter that asked for it. Returns at once.
# shellcheck source=SCRIPTDIR/device.sh
. "${0%/*}/device.sh"

PAGES=$LIBRARY/HTTPService/lighttpd

[ $# = 0 ] || refuse_call 'none' "$@"
for program in php setsid; do
  command -v "$program" >/dev/null || fail "there is no program $program"
done
# Nothing of the web service stays open: not its connection, not its session. A watcher that is killed, or fails for want of memory, say, is
# followed by another one. Where its log cannot be written it does without.
log=$PAGES/logs/trial.log
(: >>"$log") 2>/dev/null || log=/dev/null
# shellcheck disable=SC2016 # the variables are the inner shell's and PHP's
as_user pages setsid sh -c '
  for start in 1 2 3 4 5 6 7 8 9 10; do
    php -r "require \$argv[1]; watch_trial();" "$1"
    status=$?
    [ $status != 0 ] || exit 0
    sleep 1
  done' watcher "$PAGES/shared/page.php" \
  </dev/null >>"$log" 2>&1 3>&- 4>&- 5>&- 6>&- 7>&- 8>&- 9>&- &
