--TEST--
IPv6 is enabled while its flag file is there.
--FILE--
<?php
include 'scripted_platform.inc';
append_to(IPV6_ENABLED_FILE, '');
show(is_ipv6_enabled());
show_transcript();
--EXPECT--
true
TRACE[time]:Entering is_ipv6_enabled:<>
TRACE[time]:IPv6 was enabled:<>
TRACE[time]:Exiting is_ipv6_enabled:<>
