--TEST--
Disabling IPv6 that is not enabled runs no command and reports nothing.
--FILE--
<?php
include 'scripted_platform.inc';
show(set_ipv6_enabled(new Session(), false));
show_transcript();
--EXPECT--
null
TRACE[time]:Entering set_ipv6_enabled:<>
TRACE[time]:Exiting set_ipv6_enabled:<>
