--TEST--
Enabled, IPv6 is enabled; disabled, it is not.
--PLATFORM--
development
--FILE--
<?php
include 'scripted_platform.inc';
show(is_ipv6_enabled());
set_ipv6_enabled(new Session(), true);
show(is_ipv6_enabled());
show(filesize(IPV6_ENABLED_FILE));
set_ipv6_enabled(new Session(), false);
show(is_ipv6_enabled());
clearstatcache();
show(file_exists(IPV6_ENABLED_FILE));
show_lines('/^(report|Warning)/');
--EXPECT--
false
true
integer 0
false
false
