--TEST--
Each read asks again and gives an object of its own, which the page may change.
--FILE--
<?php
include 'scripted_platform.inc';
answer(IPV6 . '-g dns', exits(0), '10.1.1.1 10.1.1.2');
$first = get_network_dns(new Session());
$first->dnsPrimary = 'changed';
answer(IPV6 . '-g dns', exits(0), 'disabled');
show(get_network_dns(new Session()));
show($first);
--EXPECT--
stdClass {dnsPrimary: "", dnsSecondary: ""}
stdClass {dnsPrimary: "changed", dnsSecondary: "10.1.1.2"}
