--TEST--
A thread without a handle of its own reads the settings all the same.
--FILE--
<?php
include 'scripted_platform.inc';
answer('thread', 'empty');
answer(IPV4 . '-d status', exits(0), '10.1.1.9?255.255.255.0?10.1.1.1');
answer(IPV4 . '-g host', exits(0), 'library-7');
show(get_network_configuration_ipv4(new Session()));
show_transcript();
--EXPECT--
stdClass {hostname: "library-7", dhcpEnabled: true, ip: "10.1.1.9", gateway: "10.1.1.1", netmask: "255.255.255.0"}
TRACE[time]:Entering get_network_configuration_ipv4:<>
thread handle taken, empty
session of "admin"
read: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv4Manager.sh -d status
TRACE[time]:Output1 = :<10.1.1.9?255.255.255.0?10.1.1.1>
read: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv4Manager.sh -g host
TRACE[time]:Output3 = :<library-7>
TRACE[time]:Exiting get_network_configuration_ipv4:<>
