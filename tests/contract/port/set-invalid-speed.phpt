--TEST--
A speed that the port does not have is traced, between the other two, and replaced by 10; that is no failure.
--FILE--
<?php
include 'scripted_platform.inc';
answer(IPV4 . '-P off?10?half', exits(0), '');
show(set_eth2_port_settings(new Session(), 0, 1000, 0));
show_transcript();
--EXPECT--
null
TRACE[time]:Entering set_eth2_port_settings:<>
TRACE[time]:Autonegotiate Input Parameter: :<0>
TRACE[time]:INVALID ETH2 SPEED PARAMETER.  DEFAULT IS SET TO 10.:<>
TRACE[time]:Duplex Input Parameter: :<0>
TRACE[time]:Command Line: :</usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv4Manager.sh -P off?10?half>
read: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv4Manager.sh -P off?10?half
TRACE[time]:Exiting set_eth2_port_settings:<>
