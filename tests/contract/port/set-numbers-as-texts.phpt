--TEST--
A text of digits, true and false are the numbers that the engine makes of them.
--FILE--
<?php
include 'scripted_platform.inc';
answer(IPV4 . '-P on?100?half', exits(0), '');
set_eth2_port_settings(new Session(), true, '100', false);
answer(IPV4 . '-P off?10?full', exits(0), '');
set_eth2_port_settings(new Session(), '0', 10.0, '-7');
show_lines('/^read|Parameter|INVALID/');
--EXPECT--
TRACE[time]:Autonegotiate Input Parameter: :<1>
TRACE[time]:Duplex Input Parameter: :<0>
read: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv4Manager.sh -P on?100?half
TRACE[time]:Autonegotiate Input Parameter: :<0>
TRACE[time]:Duplex Input Parameter: :<-7>
read: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv4Manager.sh -P off?10?full
