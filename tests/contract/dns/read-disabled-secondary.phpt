--TEST--
The word "disabled" in the second place is returned as it is.
--FILE--
<?php
include 'scripted_platform.inc';
answer(IPV6 . '-g dns', exits(0), '10.0.0.1 disabled');
show(get_network_dns(new Session()));
answer(IPV6 . '-g dns', exits(0), 'disabled disabled');
show(get_network_dns(new Session()));
--EXPECT--
stdClass {dnsPrimary: "10.0.0.1", dnsSecondary: "disabled"}
stdClass {dnsPrimary: "", dnsSecondary: "disabled"}
