--TEST--
A failing command for the static settings is reported with a code of its own, and what it printed is used all the same.
--FILE--
<?php
include 'scripted_platform.inc';
answer(IPV4 . '-d status', exits(0), '??');
answer(IPV4 . '-g static', exits(1), '10.1.1.5?255.255.0.0?10.1.0.1');
answer(IPV4 . '-g host', exits(0), 'library-7');
show(get_network_configuration_ipv4(new Session()));
show_transcript();
--EXPECT--
stdClass {hostname: "library-7", dhcpEnabled: false, ip: "10.1.1.5", gateway: "10.1.0.1", netmask: "255.255.0.0"}
TRACE[time]:Entering get_network_configuration_ipv4:<>
thread handle taken
session of "admin"
read: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv4Manager.sh -d status
TRACE[time]:Output1 = :<??>
read: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv4Manager.sh -g static
report: 0x00050005 "Could not get IPv4 network information" http/src/network
TRACE[time]:Output2 = :<10.1.1.5?255.255.0.0?10.1.0.1>
read: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv4Manager.sh -g host
TRACE[time]:Output3 = :<library-7>
TRACE[time]:Exiting get_network_configuration_ipv4:<>
thread handle released
