--TEST--
The properties come in a fixed order, in an object of no class of its own.
--FILE--
<?php
include 'scripted_platform.inc';
foreach (array('', '2001:db8::10/64?2001:db8::1') as $output) {
  answer(IPV6 . '-g static', exits(0), $output);
  $settings = get_network_configuration_ipv6(new Session());
  echo strtolower(get_class($settings)), ': ', implode(' ', array_keys(get_object_vars($settings))), "\n";
}
--EXPECT--
stdclass: staticEnabled ipStatic gateway prefix
stdclass: staticEnabled ipStatic gateway prefix
