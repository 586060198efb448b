--TEST--
The prefix is kept as printed, and the gateway "::" becomes eight zero groups.
--FILE--
<?php
include 'scripted_platform.inc';
answer(IPV6 . '-g static', exits(0), 'fe80::1/48?::');
show(get_network_configuration_ipv6(new Session()));
show_transcript();
--EXPECT--
stdClass {staticEnabled: true, ipStatic: "fe80:0:0:0:0:0:0:1", gateway: "0:0:0:0:0:0:0:0", prefix: "48"}
TRACE[time]:Entering get_network_configuration_ipv6:<>
thread handle taken
session of "admin"
read: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv6Manager.sh -g static
TRACE[time]:Output = :<fe80::1/48?::>
TRACE[time]:getIPv6StaticIP() is returning: Enabled:TRUE IP: fe80:0:0:0:0:0:0:1, GW: 0:0:0:0:0:0:0:0, prefix: 48

:<>
TRACE[time]:Exiting get_network_configuration_ipv6:<>
thread handle released
