--TEST--
A script that fails and prints nothing is reported and gives the object of static addressing that is off.
--FILE--
<?php
include 'scripted_platform.inc';
answer(IPV6 . '-g static', exits(1), '');
show(get_network_configuration_ipv6(new Session()));
show_transcript();
--EXPECT--
stdClass {staticEnabled: false, ipStatic: "0:0:0:0:0:0:0:0", gateway: "0:0:0:0:0:0:0:0", prefix: "64"}
TRACE[time]:Entering get_network_configuration_ipv6:<>
thread handle taken
session of "admin"
read: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv6Manager.sh -g static
report: Failed "Failed to get IPv6 static address with the script." http/src/network
TRACE[time]:Output = :<>
TRACE[time]:Static addressing is disabled:<>
TRACE[time]:getIPv6StaticIP() is returning: Enabled:FALSE IP: 0:0:0:0:0:0:0:0, GW: 0:0:0:0:0:0:0:0, prefix: 64

:<>
TRACE[time]:Exiting get_network_configuration_ipv6:<>
thread handle released
