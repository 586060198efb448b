--TEST--
A flag file that cannot be opened counts as none: nothing is run, nothing is reported, and it stays.
--FILE--
<?php
include 'scripted_platform.inc';
symlink(IPV6_ENABLED_FILE, IPV6_ENABLED_FILE);
show(set_ipv6_enabled(new Session(), false));
show_transcript();
show(is_link(IPV6_ENABLED_FILE));
--EXPECT--
null
TRACE[time]:Entering set_ipv6_enabled:<>
TRACE[time]:Exiting set_ipv6_enabled:<>
true
