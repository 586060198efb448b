--TEST--
An empty secondary server leaves the blank before the closing quote.
--FILE--
<?php
include 'scripted_platform.inc';
class Servers {
  var $dnsPrimary = '10.1.1.1';
  var $dnsSecondary = '';
}
answer(IPV6 . '-D "10.1.1.1 "', exits(0), '');
show(set_network_dns(new Session(), new Servers()));
show_transcript();
--EXPECT--
null
TRACE[time]:Entering set_network_dns:<>
thread handle taken
session of "admin"
IConnectivity handle taken
TRACE[time]:DNS IPvAddresses = :<"10.1.1.1 ">
read: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv6Manager.sh -D [10.1.1.1 ]
TRACE[time]:Output = :<>
TRACE[time]:Exiting set_network_dns:<>
IConnectivity handle released
thread handle released
