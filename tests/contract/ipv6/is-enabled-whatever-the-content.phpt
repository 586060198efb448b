--TEST--
The content of the flag file of IPv6 has no meaning and stays as it is.
--FILE--
<?php
include 'scripted_platform.inc';
foreach (array('0', "off\n", "\0", str_repeat('no', 100000)) as $content) {
  fclose(fopen(IPV6_ENABLED_FILE, 'w'));
  append_to(IPV6_ENABLED_FILE, $content);
  show(is_ipv6_enabled());
  show(implode('', file(IPV6_ENABLED_FILE)) === $content);
}
--EXPECT--
true
true
true
true
true
true
true
true
