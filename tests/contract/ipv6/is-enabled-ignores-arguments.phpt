--TEST--
Asking whether IPv6 is enabled ignores any arguments, and neither needs nor attaches a session.
--FILE--
<?php
include 'scripted_platform.inc';
append_to(IPV6_ENABLED_FILE, '');
show(is_ipv6_enabled(new Session()));
show(is_ipv6_enabled(false, 'two', array(3), null));
show_transcript();
--EXPECT--
true
true
TRACE[time]:Entering is_ipv6_enabled:<>
TRACE[time]:IPv6 was enabled:<>
TRACE[time]:Exiting is_ipv6_enabled:<>
TRACE[time]:Entering is_ipv6_enabled:<>
TRACE[time]:IPv6 was enabled:<>
TRACE[time]:Exiting is_ipv6_enabled:<>
