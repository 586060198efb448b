--TEST--
An address or gateway with a NUL in it is no address, whatever stands before the NUL.
--FILE--
<?php
include 'scripted_platform.inc';
foreach (array("2001:db8::10\0x/64?2001:db8::1", "2001:db8::10/64?2001:db8::1\0", "\0002001:db8::10/64?2001:db8::1") as $output) {
  answer(IPV6 . '-g static', exits(0), $output);
  show(get_network_configuration_ipv6(new Session()));
  show_lines('/^report/');
}
--EXPECT--
stdClass {staticEnabled: true, ipStatic: "0:0:0:0:0:0:0:0", gateway: "2001:db8:0:0:0:0:0:1", prefix: "64"}
stdClass {staticEnabled: true, ipStatic: "2001:db8:0:0:0:0:0:10", gateway: "0:0:0:0:0:0:0:0", prefix: "64"}
stdClass {staticEnabled: true, ipStatic: "0:0:0:0:0:0:0:0", gateway: "2001:db8:0:0:0:0:0:1", prefix: "64"}
