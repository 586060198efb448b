--TEST--
The output is not looked into: anything but nothing means that static IPv6 addressing is on.
--FILE--
<?php
include 'scripted_platform.inc';
foreach (array('0', 'off', 'none', '?', "\n", "\0") as $output) {
  answer(IPV6 . '-g static', exits(0), $output);
  show(is_ipv6_static_enabled());
}
show_lines('/^report|NOT/');
--EXPECT--
true
true
true
true
true
true
