--TEST--
A host-name command that fails without printing anything is reported and gives the empty text.
--FILE--
<?php
include 'scripted_platform.inc';
answer(IPV4 . '-g host', exits(127), '');
show(get_network_hostname());
show_transcript();
--EXPECT--
""
TRACE[time]:Entering get_network_hostname:<>
read: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv4Manager.sh -g host
report: 0x00050006 "Could not get hostname information" http/src/network
TRACE[time]:Output = :<>
TRACE[time]:Exiting get_network_hostname:<>
