--TEST--
IPv6 is not enabled while there is no flag file.
--FILE--
<?php
include 'scripted_platform.inc';
show(is_ipv6_enabled());
show_transcript();
--EXPECT--
false
TRACE[time]:Entering is_ipv6_enabled:<>
TRACE[time]:IPv6 was NOT enabled:<>
TRACE[time]:Exiting is_ipv6_enabled:<>
