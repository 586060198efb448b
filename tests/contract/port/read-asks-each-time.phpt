--TEST--
Each read asks again and gives an object of its own, which the page may change.
--FILE--
<?php
include 'scripted_platform.inc';
answer(IPV4 . '-g port', exits(0), 'on?100?full');
$first = get_eth2_port_settings(new Session());
$first->Speed = 7;
answer(IPV4 . '-g port', exits(0), 'off?10?half');
show(get_eth2_port_settings(new Session()));
show($first);
--EXPECT--
stdClass {AutoNegotiate: integer 0, Speed: integer 10, Duplex: integer 0}
stdClass {AutoNegotiate: integer 1, Speed: integer 7, Duplex: integer 1}
