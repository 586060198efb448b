--TEST--
A failure to read the static address is reported; what was printed counts all the same.
--FILE--
<?php
include 'scripted_platform.inc';
answer(IPV6 . '-g static', exits(1), 'cannot read');
show(is_ipv6_static_enabled());
show_transcript();
--EXPECT--
true
TRACE[time]:Entering is_ipv6_static_enabled:<>
read: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv6Manager.sh -g static
report: Failed "Failed to get IPv6 static address with the script." http/src/network
TRACE[time]:Output = :<cannot read>
TRACE[time]:IPv6 Static was enabled:<>
TRACE[time]:Exiting is_ipv6_static_enabled:<>
