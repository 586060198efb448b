--TEST--
However many pieces there are, each count is reported once and the first ones are used.
--FILE--
<?php
include 'scripted_platform.inc';
answer(IPV6 . '-g static', exits(0), '2001:db8::10/64' . str_repeat('/x', 1000) . '?2001:db8::1' . str_repeat('?x', 1000));
show(get_network_configuration_ipv6(new Session()));
show_lines('/^report/');
--EXPECT--
stdClass {staticEnabled: true, ipStatic: "2001:db8:0:0:0:0:0:10", gateway: "2001:db8:0:0:0:0:0:1", prefix: "64"}
report: Failed "Failed to get IPv6 static address - No Address and/or Gateway returned." http/src/network
report: Failed "Failed to get IPv6 static address - No Prefix returned." http/src/network
