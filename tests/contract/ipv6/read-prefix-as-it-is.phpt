--TEST--
The prefix is not checked and stays a text.
--FILE--
<?php
include 'scripted_platform.inc';
foreach (array('0', '128', '129', '-1', '064', 'abc', '', '64.5', "6\n4") as $prefix) {
  answer(IPV6 . '-g static', exits(0), "2001:db8::10/$prefix?2001:db8::1");
  $settings = get_network_configuration_ipv6(new Session());
  show($settings->prefix);
}
show_lines('/^report/');
--EXPECT--
"0"
"128"
"129"
"-1"
"064"
"abc"
""
"64.5"
"6\n4"
