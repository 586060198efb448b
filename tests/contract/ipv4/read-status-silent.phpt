--TEST--
A DHCP status command that succeeds and prints nothing gives zeros with DHCP counted as on, and nothing is reported.
--FILE--
<?php
include 'scripted_platform.inc';
answer(IPV4 . '-d status', exits(0), '');
answer(IPV4 . '-g host', exits(0), 'library-7');
show(get_network_configuration_ipv4(new Session()));
show_transcript();
--EXPECT--
stdClass {hostname: "library-7", dhcpEnabled: true, ip: "0.0.0.0", gateway: "0.0.0.0", netmask: "0.0.0.0"}
TRACE[time]:Entering get_network_configuration_ipv4:<>
thread handle taken
session of "admin"
read: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv4Manager.sh -d status
TRACE[time]:Output1 = :<>
TRACE[time]:Could not get IPv4 network information, lets return zero's for IP settings.:<>
read: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv4Manager.sh -g host
TRACE[time]:Output3 = :<library-7>
TRACE[time]:Exiting get_network_configuration_ipv4:<>
thread handle released
