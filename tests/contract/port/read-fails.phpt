--TEST--
A failure is reported, and what the script printed is read all the same.
--FILE--
<?php
include 'scripted_platform.inc';
answer(IPV4 . '-g port', exits(1), 'on?10');
show(get_eth2_port_settings(new Session()));
show_transcript();
--EXPECT--
stdClass {AutoNegotiate: integer 1, Speed: integer 10, Duplex: integer -1}
TRACE[time]:Entering get_eth2_port_settings:<>
TRACE[time]:Command Line: :</usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv4Manager.sh -g port>
read: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv4Manager.sh -g port
report: Failed "Failed to get port settings." http/src/network
TRACE[time]:Output: :<on?10>
TRACE[time]:Exiting get_eth2_port_settings:<>
