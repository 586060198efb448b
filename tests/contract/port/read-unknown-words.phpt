--TEST--
Of unknown words only the duplex is told to be unknown; another speed reads as 100, and nothing is reported.
--FILE--
<?php
include 'scripted_platform.inc';
answer(IPV4 . '-g port', exits(0), 'on?1000?auto');
show(get_eth2_port_settings(new Session()));
show_transcript();
--EXPECT--
stdClass {AutoNegotiate: integer 1, Speed: integer 100, Duplex: integer -1}
TRACE[time]:Entering get_eth2_port_settings:<>
TRACE[time]:Command Line: :</usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv4Manager.sh -g port>
read: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv4Manager.sh -g port
TRACE[time]:Output: :<on?1000?auto>
TRACE[time]:Exiting get_eth2_port_settings:<>
