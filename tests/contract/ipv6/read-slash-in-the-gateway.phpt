--TEST--
A slash behind the question mark belongs to the gateway, which is no address with it; the prefix is not looked for there.
--FILE--
<?php
include 'scripted_platform.inc';
answer(IPV6 . '-g static', exits(0), '2001:db8::10?2001:db8::1/64');
show(get_network_configuration_ipv6(new Session()));
show_lines('/^report/');
--EXPECT--
stdClass {staticEnabled: true, ipStatic: "2001:db8:0:0:0:0:0:10", gateway: "0:0:0:0:0:0:0:0", prefix: ""}
report: Failed "Failed to get IPv6 static address - No Prefix returned." http/src/network
