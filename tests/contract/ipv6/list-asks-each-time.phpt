--TEST--
Each call runs the script again and gives an array of its own; arguments are ignored.
--FILE--
<?php
include 'scripted_platform.inc';
answer(IPV6 . '-g all', exits(0), '2001:db8::10?2001:db8::11');
$first = get_all_ipv6_addresses();
$first[0] = 'changed';
show(get_all_ipv6_addresses(new Session(), 'fe80::1'));
answer(IPV6 . '-g all', exits(0), 'fe80::1');
show(get_all_ipv6_addresses());
show($first);
--EXPECT--
array(0: "2001:db8::10", 1: "2001:db8::11")
array(0: "fe80::1")
array(0: "changed", 1: "2001:db8::11")
