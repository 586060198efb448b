--TEST--
A script that a signal ended half-way makes all three reports, and the object is complete.
--FILE--
<?php
include 'scripted_platform.inc';
answer(IPV6 . '-g static', killed_by(9), '2001:d');
show(get_network_configuration_ipv6(new Session()));
show_transcript();
--EXPECT--
stdClass {staticEnabled: true, ipStatic: "0:0:0:0:0:0:0:0", gateway: "0:0:0:0:0:0:0:0", prefix: ""}
TRACE[time]:Entering get_network_configuration_ipv6:<>
thread handle taken
session of "admin"
read: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv6Manager.sh -g static
report: Failed "Failed to get IPv6 static address with the script." http/src/network
TRACE[time]:Output = :<2001:d>
report: Failed "Failed to get IPv6 static address - No Address and/or Gateway returned." http/src/network
report: Failed "Failed to get IPv6 static address - No Prefix returned." http/src/network
TRACE[time]:getIPv6StaticIP() is returning: Enabled:TRUE IP: 0:0:0:0:0:0:0:0, GW: 0:0:0:0:0:0:0:0, prefix: 

:<>
TRACE[time]:Exiting get_network_configuration_ipv6:<>
thread handle released
