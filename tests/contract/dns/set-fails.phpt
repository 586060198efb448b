--TEST--
A failure is traced with the raw wait status and reported with the general code; the output is traced all the same.
--FILE--
<?php
include 'scripted_platform.inc';
class Servers {
  var $dnsPrimary = '10.1.1.1';
  var $dnsSecondary = '10.1.1.2';
}
answer(IPV6 . '-D "10.1.1.1 10.1.1.2"', exits(2), 'half');
show(set_network_dns(new Session(), new Servers()));
show_transcript();
--EXPECT--
null
TRACE[time]:Entering set_network_dns:<>
thread handle taken
session of "admin"
IConnectivity handle taken
TRACE[time]:DNS IPvAddresses = :<"10.1.1.1 10.1.1.2">
read: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv6Manager.sh -D [10.1.1.1 10.1.1.2]
TRACE[time]:returnCode = :<512>
report: Failed "Failed to set DNS addresses." http/src/network
TRACE[time]:Output = :<half>
TRACE[time]:Exiting set_network_dns:<>
IConnectivity handle released
thread handle released
