#!/bin/sh
# Makes the accounts of the management pages when there are none yet, and prints a line for each with its name and
# its password: the only time that can be seen. Prints nothing when there are accounts.
# shellcheck source=SCRIPTDIR/device.sh
. "${0%/*}/device.sh"

[ $# = 0 ] || refuse_call 'none' "$@"
# shellcheck disable=SC2016 # the variable is PHP's
as_user pages php -n -r 'require $argv[1]; make_first_accounts();' "$LIBRARY/HTTPService/lighttpd/shared/page.php"
