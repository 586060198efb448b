#!/bin/sh
# Keeps the clients of the web service within limits, in the foreground: connectionLimits.sh PORT...
# With the one right that it takes to end somebody else's connection.
# shellcheck source=SCRIPTDIR/device.sh
. "${0%/*}/device.sh"

with_rights ,+net_admin "$BIN/connectionLimits" "$@"
