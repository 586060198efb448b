--TEST--
Of a thousand addresses none is lost, and each has its place and its trace.
--FILE--
<?php
include 'scripted_platform.inc';
$wanted = array();
for ($i = 0; $i < 1000; ++$i) $wanted[] = '2001:db8::' . dechex($i);
answer(IPV6 . '-g all', exits(0), implode('?', $wanted));
show(get_all_ipv6_addresses() === $wanted);
preg_match_all('/^TRACE.*:Adding IPv6 :<(.*)>$/m', transcript(), $traced);
show($traced[1] === $wanted);
--EXPECT--
true
true
