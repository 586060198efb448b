--TEST--
A number beyond 32 bits, which is a fraction to this engine, is neither taken for its lower half nor for zero; the traces carry the nearest number that they can.
--FILE--
<?php
include 'scripted_platform.inc';
answer(IPV4 . '-P on?10?full', exits(0), '');
foreach (array(4294967296, -4294967296, PHP_INT_MAX, PHP_INT_MIN) as $number) {
  set_eth2_port_settings(new Session(), $number, 10, $number);
  show_lines('/^read|Parameter/');
}
foreach (array(4294967306, 4294967396, PHP_INT_MAX, PHP_INT_MIN) as $speed) {
  set_eth2_port_settings(new Session(), 1, $speed, 1);
  show_lines('/^read|INVALID/');
}
--EXPECT--
TRACE[time]:Autonegotiate Input Parameter: :<2147483647>
TRACE[time]:Duplex Input Parameter: :<2147483647>
read: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv4Manager.sh -P on?10?full
TRACE[time]:Autonegotiate Input Parameter: :<-2147483648>
TRACE[time]:Duplex Input Parameter: :<-2147483648>
read: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv4Manager.sh -P on?10?full
TRACE[time]:Autonegotiate Input Parameter: :<2147483647>
TRACE[time]:Duplex Input Parameter: :<2147483647>
read: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv4Manager.sh -P on?10?full
TRACE[time]:Autonegotiate Input Parameter: :<-2147483648>
TRACE[time]:Duplex Input Parameter: :<-2147483648>
read: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv4Manager.sh -P on?10?full
TRACE[time]:INVALID ETH2 SPEED PARAMETER.  DEFAULT IS SET TO 10.:<>
read: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv4Manager.sh -P on?10?full
TRACE[time]:INVALID ETH2 SPEED PARAMETER.  DEFAULT IS SET TO 10.:<>
read: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv4Manager.sh -P on?10?full
TRACE[time]:INVALID ETH2 SPEED PARAMETER.  DEFAULT IS SET TO 10.:<>
read: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv4Manager.sh -P on?10?full
TRACE[time]:INVALID ETH2 SPEED PARAMETER.  DEFAULT IS SET TO 10.:<>
read: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv4Manager.sh -P on?10?full
