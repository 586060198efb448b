--TEST--
Each call looks at the flag file again.
--FILE--
<?php
include 'scripted_platform.inc';
show(is_ipv6_enabled());
append_to(IPV6_ENABLED_FILE, '');
show(is_ipv6_enabled());
unlink(IPV6_ENABLED_FILE);
show(is_ipv6_enabled());
--EXPECT--
false
true
false
