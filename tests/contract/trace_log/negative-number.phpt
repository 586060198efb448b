--TEST--
A negative number stands in its trace as plain decimal digits behind a minus sign.
--FILE--
<?php
include 'scripted_platform.inc';
answer(IPV4 . '-P on?10?full', exits(0), '');
set_eth2_port_settings(new Session(), -5, 10, -2147483647);
show_lines('/Parameter/');
--EXPECT--
TRACE[time]:Autonegotiate Input Parameter: :<-5>
TRACE[time]:Duplex Input Parameter: :<-2147483647>
