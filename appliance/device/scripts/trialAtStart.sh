#!/bin/sh
# To be run when the device starts, before the stored settings are put into force: when a change was on trial at the end of the
# last run, the settings of before it are put back. Ends when that is done; without such a change, at once.
# shellcheck source=SCRIPTDIR/device.sh
. "${0%/*}/device.sh"

[ $# = 0 ] || refuse_call 'none' "$@"
[ -s "$LIBRARY/HTTPService/dat/trial" ] || exit 0
# shellcheck disable=SC2016 # the variable is PHP's
as_user pages php -r 'require $argv[1]; undo_at_start();' "$LIBRARY/HTTPService/lighttpd/shared/page.php"
