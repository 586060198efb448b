--TEST--
Servers and an output of 1 MiB are passed on and traced whole.
--FILE--
<?php
include 'scripted_platform.inc';
$long = str_repeat('0123456789abcdef', 65536);
$settings = new stdClass();
$settings->dnsPrimary = $settings->dnsSecondary = $long;
answer(IPV6 . "-D \"$long $long\"", exits(1), $long);
show(set_network_dns(new Session(), $settings));
echo str_replace($long, 'LONG', masked_transcript());
--EXPECT--
null
TRACE[time]:Entering set_network_dns:<>
thread handle taken
session of "admin"
IConnectivity handle taken
TRACE[time]:DNS IPvAddresses = :<"LONG LONG">
read: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv6Manager.sh -D [LONG LONG]
TRACE[time]:returnCode = :<256>
report: Failed "Failed to set DNS addresses." http/src/network
TRACE[time]:Output = :<LONG>
TRACE[time]:Exiting set_network_dns:<>
IConnectivity handle released
thread handle released
