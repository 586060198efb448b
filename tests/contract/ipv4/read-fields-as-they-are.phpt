--TEST--
Fields are neither checked nor trimmed.
--FILE--
<?php
include 'scripted_platform.inc';
answer(IPV4 . '-d status', exits(0), " 300.1.1.1 ?\xC3\xBC/24?<b>\n");
answer(IPV4 . '-g host', exits(0), 'library-7');
show(get_network_configuration_ipv4(new Session()));
--EXPECT--
stdClass {hostname: "library-7", dhcpEnabled: true, ip: " 300.1.1.1 ", gateway: "<b>\n", netmask: "\303\274/24"}
