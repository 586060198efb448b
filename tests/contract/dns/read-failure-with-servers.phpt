--TEST--
Servers that a failing script printed are returned after the report, whatever its exit status.
--FILE--
<?php
include 'scripted_platform.inc';
answer(IPV6 . '-g dns', exits(44), 'disabled 10.0.0.2');
show(get_network_dns(new Session()));
show_transcript();
--EXPECT--
stdClass {dnsPrimary: "", dnsSecondary: "10.0.0.2"}
TRACE[time]:Entering get_network_dns:<>
thread handle taken
session of "admin"
read: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv6Manager.sh -g dns
report: Failed "Failed to get DNS addresses: disabled 10.0.0.2" http/src/network
TRACE[time]:Exiting get_network_dns:<>
thread handle released
