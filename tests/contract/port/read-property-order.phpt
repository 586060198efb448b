--TEST--
The properties come in a fixed order, in an object of no class of its own.
--FILE--
<?php
include 'scripted_platform.inc';
answer(IPV4 . '-g port', exits(0), 'on?100?full');
$settings = get_eth2_port_settings(new Session());
echo strtolower(get_class($settings)), ': ', implode(' ', array_keys(get_object_vars($settings))), "\n";
--EXPECT--
stdclass: AutoNegotiate Speed Duplex
