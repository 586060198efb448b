--TEST--
Without a question mark there is no gateway: that is reported, it reads as zero groups, and static addressing is on.
--FILE--
<?php
include 'scripted_platform.inc';
answer(IPV6 . '-g static', exits(0), '2001:db8::10/64');
show(get_network_configuration_ipv6(new Session()));
show_transcript();
--EXPECT--
stdClass {staticEnabled: true, ipStatic: "2001:db8:0:0:0:0:0:10", gateway: "0:0:0:0:0:0:0:0", prefix: "64"}
TRACE[time]:Entering get_network_configuration_ipv6:<>
thread handle taken
session of "admin"
read: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv6Manager.sh -g static
TRACE[time]:Output = :<2001:db8::10/64>
report: Failed "Failed to get IPv6 static address - No Address and/or Gateway returned." http/src/network
TRACE[time]:getIPv6StaticIP() is returning: Enabled:TRUE IP: 2001:db8:0:0:0:0:0:10, GW: 0:0:0:0:0:0:0:0, prefix: 64

:<>
TRACE[time]:Exiting get_network_configuration_ipv6:<>
thread handle released
