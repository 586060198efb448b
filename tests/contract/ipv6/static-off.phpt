--TEST--
Static IPv6 addressing is off when the script prints nothing.
--FILE--
<?php
include 'scripted_platform.inc';
answer(IPV6 . '-g static', exits(0), '');
show(is_ipv6_static_enabled());
show_transcript();
--EXPECT--
false
TRACE[time]:Entering is_ipv6_static_enabled:<>
read: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv6Manager.sh -g static
TRACE[time]:Output = :<>
TRACE[time]:IPv6 Static was NOT enabled:<>
TRACE[time]:Exiting is_ipv6_static_enabled:<>
