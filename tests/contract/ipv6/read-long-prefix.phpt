--TEST--
A prefix of 1 MiB is traced and returned whole.
--FILE--
<?php
include 'scripted_platform.inc';
$prefix = str_repeat('0123456789abcdef', 65536);
answer(IPV6 . '-g static', exits(0), "2001:db8::10/$prefix?2001:db8::1");
$settings = get_network_configuration_ipv6(new Session());
show($settings->prefix === $prefix);
show(strpos(transcript(), "prefix: $prefix\n\n:<>\n") > 0);
--EXPECT--
true
true
