--TEST--
Exit status 44 says that a server is an internal address: it is reported with a code of its own.
--FILE--
<?php
include 'scripted_platform.inc';
class Servers {
  var $dnsPrimary = '192.168.250.1';
  var $dnsSecondary = '10.1.1.2';
}
answer(IPV6 . '-D "192.168.250.1 10.1.1.2"', exits(44), '');
show(set_network_dns(new Session(), new Servers()));
show_transcript();
--EXPECT--
null
TRACE[time]:Entering set_network_dns:<>
thread handle taken
session of "admin"
IConnectivity handle taken
TRACE[time]:DNS IPvAddresses = :<"192.168.250.1 10.1.1.2">
read: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv6Manager.sh -D [192.168.250.1 10.1.1.2]
TRACE[time]:returnCode = :<11264>
report: 0x00050040 "Failed to set DNS addresses." http/src/network
TRACE[time]:Output = :<>
TRACE[time]:Exiting set_network_dns:<>
IConnectivity handle released
thread handle released
