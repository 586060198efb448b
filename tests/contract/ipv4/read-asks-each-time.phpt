--TEST--
Each read asks again and gives an object of its own, which the page may change.
--FILE--
<?php
include 'scripted_platform.inc';
answer(IPV4 . '-d status', exits(0), '10.1.1.9?255.255.255.0?10.1.1.1');
answer(IPV4 . '-g host', exits(0), 'first');
$first = get_network_configuration_ipv4(new Session());
$first->gateway = 'changed';
answer(IPV4 . '-d status', exits(0), '??');
answer(IPV4 . '-g static', exits(0), '10.1.1.5?255.255.0.0?10.1.0.1');
answer(IPV4 . '-g host', exits(0), 'second');
$second = get_network_configuration_ipv4(new Session());
show($first);
show($second);
--EXPECT--
stdClass {hostname: "first", dhcpEnabled: true, ip: "10.1.1.9", gateway: "changed", netmask: "255.255.255.0"}
stdClass {hostname: "second", dhcpEnabled: false, ip: "10.1.1.5", gateway: "10.1.0.1", netmask: "255.255.0.0"}
