--TEST--
A script that fails and prints nothing gives three unknown words: 0, 100 and -1.
--FILE--
<?php
include 'scripted_platform.inc';
answer(IPV4 . '-g port', killed_by(9), '');
show(get_eth2_port_settings(new Session()));
show_transcript();
--EXPECT--
stdClass {AutoNegotiate: integer 0, Speed: integer 100, Duplex: integer -1}
TRACE[time]:Entering get_eth2_port_settings:<>
TRACE[time]:Command Line: :</usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv4Manager.sh -g port>
read: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv4Manager.sh -g port
report: Failed "Failed to get port settings." http/src/network
TRACE[time]:Output: :<>
TRACE[time]:Exiting get_eth2_port_settings:<>
