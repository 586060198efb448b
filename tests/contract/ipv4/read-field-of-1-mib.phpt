--TEST--
A field of 1 MiB is returned whole.
--FILE--
<?php
include 'scripted_platform.inc';
$long = str_repeat('0123456789abcdef', 65536);
answer(IPV4 . '-d status', exits(0), "10.1.1.9?$long?10.1.1.1");
answer(IPV4 . '-g host', exits(0), $long);
$settings = get_network_configuration_ipv4(new Session());
show($settings->netmask == $long);
show($settings->hostname == $long);
show($settings->ip);
show($settings->gateway);
--EXPECT--
true
true
"10.1.1.9"
"10.1.1.1"
