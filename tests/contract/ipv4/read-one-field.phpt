--TEST--
Settings without a question mark are the address; netmask and gateway are zeros.
--FILE--
<?php
include 'scripted_platform.inc';
answer(IPV4 . '-d status', exits(0), 'none');
answer(IPV4 . '-g host', exits(0), 'library-7');
show(get_network_configuration_ipv4(new Session()));
show_transcript();
--EXPECT--
stdClass {hostname: "library-7", dhcpEnabled: true, ip: "none", gateway: "0.0.0.0", netmask: "0.0.0.0"}
TRACE[time]:Entering get_network_configuration_ipv4:<>
thread handle taken
session of "admin"
read: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv4Manager.sh -d status
TRACE[time]:Output1 = :<none>
TRACE[time]:Could not get IPv4 network information, lets return zero's for IP settings.:<>
read: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv4Manager.sh -g host
TRACE[time]:Output3 = :<library-7>
TRACE[time]:Exiting get_network_configuration_ipv4:<>
thread handle released
