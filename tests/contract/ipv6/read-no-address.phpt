--TEST--
A text that is no IPv6 address reads as eight zero groups: static addressing stays on, and nothing is reported.
--FILE--
<?php
include 'scripted_platform.inc';
foreach (array('none/64?none', '10.0.0.5/24?10.0.0.1', '2001:db8/64?1:2:3:4:5:6:7:8:9', '/64?', "2001:db8::10\n/64?fe80::1\n") as $output) {
  answer(IPV6 . '-g static', exits(0), $output);
  show(get_network_configuration_ipv6(new Session()));
}
show_lines('/^report|disabled/');
--EXPECT--
stdClass {staticEnabled: true, ipStatic: "0:0:0:0:0:0:0:0", gateway: "0:0:0:0:0:0:0:0", prefix: "64"}
stdClass {staticEnabled: true, ipStatic: "0:0:0:0:0:0:0:0", gateway: "0:0:0:0:0:0:0:0", prefix: "24"}
stdClass {staticEnabled: true, ipStatic: "0:0:0:0:0:0:0:0", gateway: "0:0:0:0:0:0:0:0", prefix: "64"}
stdClass {staticEnabled: true, ipStatic: "0:0:0:0:0:0:0:0", gateway: "0:0:0:0:0:0:0:0", prefix: "64"}
stdClass {staticEnabled: true, ipStatic: "0:0:0:0:0:0:0:0", gateway: "0:0:0:0:0:0:0:0", prefix: "64"}
