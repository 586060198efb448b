--TEST--
With a text in "staticEnabled", address, prefix and gateway are set at once, and also written to standard error; the host name is not looked at and no service asked.
--FILE--
<?php
include 'scripted_platform.inc';
answer(IPV6 . '-c -s 2001:db8::10/64?2001:db8::1', exits(0));
show(set_network_configuration_ipv6(new Session(), new Ipv6Settings()));
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
TRACE[time]:Entering set_network_ipv6:<>
TRACE[time]:Entering setIPv6StaticIP(), address::<2001:db8::10/64?2001:db8::1>
run: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv6Manager.sh -c -s 2001:db8::10/64?2001:db8::1


Data was: 2001:db8::10, 2001:db8::1, 64

TRACE[time]:The new Network settings have been applied!:<>
TRACE[time]:Leaving set_network_ipv6:<>
