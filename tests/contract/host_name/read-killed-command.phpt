--TEST--
A host-name command that a signal ended is a failure like any other.
--FILE--
<?php
include 'scripted_platform.inc';
answer(IPV4 . '-g host', killed_by(9), 'lib');
show(get_network_hostname());
show_transcript();
--EXPECT--
"lib"
TRACE[time]:Entering get_network_hostname:<>
read: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv4Manager.sh -g host
report: 0x00050006 "Could not get hostname information" http/src/network
TRACE[time]:Output = :<lib>
TRACE[time]:Exiting get_network_hostname:<>
