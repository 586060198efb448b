--TEST--
The log is written when it is opened where standard input was, too.
--FILE--
<?php
include 'scripted_platform.inc';
fclose(STDIN);
is_ipv6_enabled();
show_transcript();
--EXPECT--
TRACE[time]:Entering is_ipv6_enabled:<>
TRACE[time]:IPv6 was NOT enabled:<>
TRACE[time]:Exiting is_ipv6_enabled:<>
