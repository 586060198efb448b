--TEST--
Off, 10 and half are read as 0, 10 and 0.
--FILE--
<?php
include 'scripted_platform.inc';
answer(IPV4 . '-g port', exits(0), 'off?10?half');
show(get_eth2_port_settings(new Session()));
show_transcript();
--EXPECT--
stdClass {AutoNegotiate: integer 0, Speed: integer 10, Duplex: integer 0}
TRACE[time]:Entering get_eth2_port_settings:<>
TRACE[time]:Command Line: :</usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv4Manager.sh -g port>
read: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv4Manager.sh -g port
TRACE[time]:Output: :<off?10?half>
TRACE[time]:Exiting get_eth2_port_settings:<>
