--TEST--
A link in the flag file's place counts as what it leads to.
--FILE--
<?php
include 'world.inc';
symlink(world_file('elsewhere'), IPV6_ENABLED_FILE);
show(is_ipv6_enabled());
append_to(world_file('elsewhere'), '');
show(is_ipv6_enabled());
--EXPECT--
false
true
