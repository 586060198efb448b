--TEST--
A script that fails and prints nothing is reported, and means that static IPv6 addressing is off.
--FILE--
<?php
include 'scripted_platform.inc';
answer(IPV6 . '-g static', exits(1), '');
show(is_ipv6_static_enabled());
answer(IPV6 . '-g static', killed_by(9), '');
show(is_ipv6_static_enabled());
show_transcript();
--EXPECT--
false
false
TRACE[time]:Entering is_ipv6_static_enabled:<>
read: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv6Manager.sh -g static
report: Failed "Failed to get IPv6 static address with the script." http/src/network
TRACE[time]:Output = :<>
TRACE[time]:IPv6 Static was NOT enabled:<>
TRACE[time]:Exiting is_ipv6_static_enabled:<>
TRACE[time]:Entering is_ipv6_static_enabled:<>
read: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv6Manager.sh -g static
report: Failed "Failed to get IPv6 static address with the script." http/src/network
TRACE[time]:Output = :<>
TRACE[time]:IPv6 Static was NOT enabled:<>
TRACE[time]:Exiting is_ipv6_static_enabled:<>
