--TEST--
The connectivity service is not needed: without it the servers are set all the same, and nothing is reported.
--FILE--
<?php
include 'scripted_platform.inc';
$settings = new stdClass();
$settings->dnsPrimary = '10.1.1.1';
answer('IConnectivity', 'empty');
answer('thread', 'empty');
answer(IPV6 . '-D "10.1.1.1 "', exits(0), '');
show(set_network_dns(new Session(), $settings));
show_transcript();
--EXPECT--
null
TRACE[time]:Entering set_network_dns:<>
thread handle taken, empty
session of "admin"
IConnectivity handle taken, empty
TRACE[time]:DNS IPvAddresses = :<"10.1.1.1 ">
read: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv6Manager.sh -D [10.1.1.1 ]
TRACE[time]:Output = :<>
TRACE[time]:Exiting set_network_dns:<>
