#!/bin/sh
# Gives an account of the management pages a new password, for who has lost it, and prints its name and the password: the
# only time that can be seen. All sessions of the account end. Works whether the web service runs or not.
# shellcheck source=SCRIPTDIR/device.sh
. "${0%/*}/device.sh"

[ $# = 1 ] || refuse_call 'NAME' "$@"
# shellcheck disable=SC2016 # the variable is PHP's
as_user pages php -n -r 'require $argv[1]; reset_password($argv[2]);' "$LIBRARY/HTTPService/lighttpd/shared/page.php" "$1"
