--TEST--
A failing host-name command is reported with its own code; the settings are returned, and what it printed is the host name.
--FILE--
<?php
include 'scripted_platform.inc';
answer(IPV4 . '-d status', exits(0), '10.1.1.9?255.255.255.0?10.1.1.1');
answer(IPV4 . '-g host', exits(1), 'half a na');
show(get_network_configuration_ipv4(new Session()));
show_transcript();
--EXPECT--
stdClass {hostname: "half a na", dhcpEnabled: true, ip: "10.1.1.9", gateway: "10.1.1.1", netmask: "255.255.255.0"}
TRACE[time]:Entering get_network_configuration_ipv4:<>
thread handle taken
session of "admin"
read: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv4Manager.sh -d status
TRACE[time]:Output1 = :<10.1.1.9?255.255.255.0?10.1.1.1>
read: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv4Manager.sh -g host
report: 0x00050006 "Could not get hostname information" http/src/network
TRACE[time]:Output3 = :<half a na>
TRACE[time]:Exiting get_network_configuration_ipv4:<>
thread handle released
