--TEST--
The primary server comes first, in an object of no class of its own.
--FILE--
<?php
include 'scripted_platform.inc';
answer(IPV6 . '-g dns', exits(0), '10.1.1.1 10.1.1.2');
$servers = get_network_dns(new Session());
echo strtolower(get_class($servers)), ': ', implode(' ', array_keys(get_object_vars($servers))), "\n";
--EXPECT--
stdclass: dnsPrimary dnsSecondary
