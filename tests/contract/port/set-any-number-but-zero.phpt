--TEST--
Any number but zero means autonegotiation on and full duplex; the traces carry the numbers as they are.
--FILE--
<?php
include 'scripted_platform.inc';
answer(IPV4 . '-P on?100?full', exits(0), '');
foreach (array(5, -1, 256, 65536, 2147483647, -2147483647 - 1) as $number) set_eth2_port_settings(new Session(), $number, 100, $number);
show_lines('/^read|Parameter/');
--EXPECT--
TRACE[time]:Autonegotiate Input Parameter: :<5>
TRACE[time]:Duplex Input Parameter: :<5>
read: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv4Manager.sh -P on?100?full
TRACE[time]:Autonegotiate Input Parameter: :<-1>
TRACE[time]:Duplex Input Parameter: :<-1>
read: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv4Manager.sh -P on?100?full
TRACE[time]:Autonegotiate Input Parameter: :<256>
TRACE[time]:Duplex Input Parameter: :<256>
read: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv4Manager.sh -P on?100?full
TRACE[time]:Autonegotiate Input Parameter: :<65536>
TRACE[time]:Duplex Input Parameter: :<65536>
read: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv4Manager.sh -P on?100?full
TRACE[time]:Autonegotiate Input Parameter: :<2147483647>
TRACE[time]:Duplex Input Parameter: :<2147483647>
read: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv4Manager.sh -P on?100?full
TRACE[time]:Autonegotiate Input Parameter: :<-2147483648>
TRACE[time]:Duplex Input Parameter: :<-2147483648>
read: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv4Manager.sh -P on?100?full
