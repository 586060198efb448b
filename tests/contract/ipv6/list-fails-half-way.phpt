--TEST--
A script that fails after part of its output is reported once; that part is returned.
--FILE--
<?php
include 'scripted_platform.inc';
answer(IPV6 . '-g all', exits(1), '2001:db8::10?2001:d');
show(get_all_ipv6_addresses());
show_transcript();
--EXPECT--
array(0: "2001:db8::10", 1: "2001:d")
TRACE[time]:Entering get_all_ipv6_addresses:<>
read: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv6Manager.sh -g all
report: Failed "Failed to get IPv6 address." http/src/network
TRACE[time]:Adding IPv6 :<2001:db8::10>
TRACE[time]:Adding IPv6 :<2001:d>
TRACE[time]:Exiting get_all_ipv6_addresses:<>
