--TEST--
The message and each server end at the first NUL; the words are parted before.
--FILE--
<?php
include 'scripted_platform.inc';
answer(IPV6 . '-g dns', exits(1), "10.1.1.1\0x 10.1.1.2\0");
show(get_network_dns(new Session()));
show_lines('/^report/');
--EXPECT--
stdClass {dnsPrimary: "10.1.1.1", dnsSecondary: "10.1.1.2"}
report: Failed "Failed to get DNS addresses: 10.1.1.1" http/src/network
