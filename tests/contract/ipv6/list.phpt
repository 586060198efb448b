--TEST--
The addresses come as an array in the script's order, each traced before it is added. No service is asked and no session attached.
--FILE--
<?php
include 'scripted_platform.inc';
answer(IPV6 . '-g all', exits(0), '2001:db8::10?2001:db8::150?fe80::1');
show(get_all_ipv6_addresses());
show_transcript();
--EXPECT--
array(0: "2001:db8::10", 1: "2001:db8::150", 2: "fe80::1")
TRACE[time]:Entering get_all_ipv6_addresses:<>
read: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv6Manager.sh -g all
TRACE[time]:Adding IPv6 :<2001:db8::10>
TRACE[time]:Adding IPv6 :<2001:db8::150>
TRACE[time]:Adding IPv6 :<fe80::1>
TRACE[time]:Exiting get_all_ipv6_addresses:<>
