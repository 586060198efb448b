#!/bin/sh
# Restarts the sending of traps and sends a test trap to every registered receiver. Exit status 0 only when
# all could be sent.
exec /bin/sh "${0%/*}/AppManager/bin/sendTestTraps.sh"
