--TEST--
Each read asks again and gives an object of its own, which the page may change.
--FILE--
<?php
include 'scripted_platform.inc';
answer(IPV6 . '-g static', exits(0), '2001:db8::10/64?2001:db8::1');
$first = get_network_configuration_ipv6(new Session());
$first->gateway = 'changed';
answer(IPV6 . '-g static', exits(0), '');
show(get_network_configuration_ipv6(new Session()));
show($first);
--EXPECT--
stdClass {staticEnabled: false, ipStatic: "0:0:0:0:0:0:0:0", gateway: "0:0:0:0:0:0:0:0", prefix: "64"}
stdClass {staticEnabled: true, ipStatic: "2001:db8:0:0:0:0:0:10", gateway: "changed", prefix: "64"}
