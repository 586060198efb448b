--TEST--
A link in the flag file's place counts as what it leads to.
--FILE--
<?php
include 'scripted_platform.inc';
symlink(platform_file('elsewhere'), IPV6_ENABLED_FILE);
show(is_ipv6_enabled());
append_to(platform_file('elsewhere'), '');
show(is_ipv6_enabled());
--EXPECT--
false
true
