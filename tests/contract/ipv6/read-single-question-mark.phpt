--TEST--
Of a single question mark, both pieces are empty: only the prefix is missed, and nothing is read beyond the pieces.
--FILE--
<?php
include 'scripted_platform.inc';
answer(IPV6 . '-g static', exits(0), '?');
show(get_network_configuration_ipv6(new Session()));
show_transcript();
--EXPECT--
stdClass {staticEnabled: true, ipStatic: "0:0:0:0:0:0:0:0", gateway: "0:0:0:0:0:0:0:0", prefix: ""}
TRACE[time]:Entering get_network_configuration_ipv6:<>
thread handle taken
session of "admin"
read: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv6Manager.sh -g static
TRACE[time]:Output = :<?>
report: Failed "Failed to get IPv6 static address - No Prefix returned." http/src/network
TRACE[time]:getIPv6StaticIP() is returning: Enabled:TRUE IP: 0:0:0:0:0:0:0:0, GW: 0:0:0:0:0:0:0:0, prefix: 

:<>
TRACE[time]:Exiting get_network_configuration_ipv6:<>
thread handle released
