--TEST--
A flag file counts that is opened where standard input was, too.
--FILE--
<?php
include 'scripted_platform.inc';
touch(IPV6_ENABLED_FILE);
fclose(STDIN);
show(is_ipv6_enabled());
unlink(IPV6_ENABLED_FILE);
show(is_ipv6_enabled());
--EXPECT--
true
false
