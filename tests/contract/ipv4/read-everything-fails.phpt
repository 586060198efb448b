--TEST--
When all three commands fail, each is reported in turn with its code, and the object has all its properties.
--FILE--
<?php
include 'scripted_platform.inc';
answer(IPV4 . '-d status', exits(1), '??');
answer(IPV4 . '-g static', exits(1), '');
answer(IPV4 . '-g host', exits(1), '');
show(get_network_configuration_ipv4(new Session()));
show_transcript();
--EXPECT--
stdClass {hostname: "", dhcpEnabled: false, ip: "0.0.0.0", gateway: "0.0.0.0", netmask: "0.0.0.0"}
TRACE[time]:Entering get_network_configuration_ipv4:<>
thread handle taken
session of "admin"
read: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv4Manager.sh -d status
report: Failed "Could not get IPv4 network information" http/src/network
TRACE[time]:Output1 = :<??>
read: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv4Manager.sh -g static
report: 0x00050005 "Could not get IPv4 network information" http/src/network
TRACE[time]:Output2 = :<>
TRACE[time]:Could not get IPv4 network information, lets return zero's for IP settings.:<>
read: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv4Manager.sh -g host
report: 0x00050006 "Could not get hostname information" http/src/network
TRACE[time]:Output3 = :<>
TRACE[time]:Exiting get_network_configuration_ipv4:<>
thread handle released
