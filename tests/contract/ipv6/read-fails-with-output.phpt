--TEST--
What a failing script printed is read like any other output, after the report.
--FILE--
<?php
include 'scripted_platform.inc';
answer(IPV6 . '-g static', exits(1), '2001:db8::10/64?2001:db8::1');
show(get_network_configuration_ipv6(new Session()));
show_transcript();
--EXPECT--
stdClass {staticEnabled: true, ipStatic: "2001:db8:0:0:0:0:0:10", gateway: "2001:db8:0:0:0:0:0:1", prefix: "64"}
TRACE[time]:Entering get_network_configuration_ipv6:<>
thread handle taken
session of "admin"
read: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv6Manager.sh -g static
report: Failed "Failed to get IPv6 static address with the script." http/src/network
TRACE[time]:Output = :<2001:db8::10/64?2001:db8::1>
TRACE[time]:getIPv6StaticIP() is returning: Enabled:TRUE IP: 2001:db8:0:0:0:0:0:10, GW: 2001:db8:0:0:0:0:0:1, prefix: 64

:<>
TRACE[time]:Exiting get_network_configuration_ipv6:<>
thread handle released
