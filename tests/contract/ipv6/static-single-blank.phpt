--TEST--
A single blank is an output, too: static IPv6 addressing is on.
--FILE--
<?php
include 'scripted_platform.inc';
answer(IPV6 . '-g static', exits(0), ' ');
show(is_ipv6_static_enabled());
show_transcript();
--EXPECT--
true
TRACE[time]:Entering is_ipv6_static_enabled:<>
read: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv6Manager.sh -g static
TRACE[time]:Output = :< >
TRACE[time]:IPv6 Static was enabled:<>
TRACE[time]:Exiting is_ipv6_static_enabled:<>
