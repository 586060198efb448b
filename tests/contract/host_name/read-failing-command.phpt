--TEST--
A host-name command that fails is reported, and what it printed is returned all the same.
--FILE--
<?php
include 'scripted_platform.inc';
answer(IPV4 . '-g host', exits(1), 'half a na');
show(get_network_hostname());
show_transcript();
--EXPECT--
"half a na"
TRACE[time]:Entering get_network_hostname:<>
read: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv4Manager.sh -g host
report: 0x00050006 "Could not get hostname information" http/src/network
TRACE[time]:Output = :<half a na>
TRACE[time]:Exiting get_network_hostname:<>
