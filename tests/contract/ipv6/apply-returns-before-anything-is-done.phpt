--TEST--
The function has returned null before the worker does its first step, also where that will fail.
--FILE--
<?php
include 'scripted_platform.inc';
answer(IPV6 . '-c -s 2001:db8::10/64?2001:db8::1', exits(1));
show(set_network_configuration_ipv6(new Session(), new Ipv6Settings()));
show_transcript();
echo "the page goes on\n";
run_thread();
show_transcript();
--EXPECT--
null
TRACE[time]:Entering set_network_configuration_ipv6:<>
thread handle taken
session of "admin"
TRACE[time]:Firing off the thread to Set Network settings for IPv6:<>
thread set_network_ipv6: created
thread detached
TRACE[time]:Exiting set_network_configuration_ipv6:<>
thread handle released
the page goes on
TRACE[time]:Entering set_network_ipv6:<>
TRACE[time]:Entering setIPv6StaticIP(), address::<2001:db8::10/64?2001:db8::1>
run: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv6Manager.sh -c -s 2001:db8::10/64?2001:db8::1
TRACE[time]:Failed to enable static IPv6 address: :<256>
