--TEST--
The properties come in a fixed order, the gateway before the netmask, in an object of no class of its own.
--FILE--
<?php
include 'scripted_platform.inc';
answer(IPV4 . '-d status', exits(0), '10.1.1.9?255.255.255.0?10.1.1.1');
answer(IPV4 . '-g host', exits(0), 'library-7');
$settings = get_network_configuration_ipv4(new Session());
echo strtolower(get_class($settings)), ': ', implode(' ', array_keys(get_object_vars($settings))), "\n";
--EXPECT--
stdclass: hostname dhcpEnabled ip gateway netmask
