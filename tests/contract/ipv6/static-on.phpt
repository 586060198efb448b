--TEST--
Static IPv6 addressing is on when the script prints anything. No service is asked and no session attached.
--FILE--
<?php
include 'scripted_platform.inc';
answer(IPV6 . '-g static', exits(0), '2001:db8::10/64?2001:db8::1');
show(is_ipv6_static_enabled());
show_transcript();
--EXPECT--
true
TRACE[time]:Entering is_ipv6_static_enabled:<>
read: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv6Manager.sh -g static
TRACE[time]:Output = :<2001:db8::10/64?2001:db8::1>
TRACE[time]:IPv6 Static was enabled:<>
TRACE[time]:Exiting is_ipv6_static_enabled:<>
