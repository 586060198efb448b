--TEST--
The settings go to the script as three words joined by question marks. No service is asked and no session attached, and the output is not traced.
--FILE--
<?php
include 'scripted_platform.inc';
answer(IPV4 . '-P on?100?full', exits(0), 'done');
show(set_eth2_port_settings(new Session(), 1, 100, 1));
show_transcript();
--EXPECT--
null
TRACE[time]:Entering set_eth2_port_settings:<>
TRACE[time]:Autonegotiate Input Parameter: :<1>
TRACE[time]:Duplex Input Parameter: :<1>
TRACE[time]:Command Line: :</usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv4Manager.sh -P on?100?full>
read: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv4Manager.sh -P on?100?full
TRACE[time]:Exiting set_eth2_port_settings:<>
