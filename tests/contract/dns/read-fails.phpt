--TEST--
A failure is reported with what the script printed, and the object is built of that all the same.
--FILE--
<?php
include 'scripted_platform.inc';
answer(IPV6 . '-g dns', exits(1), 'no such file');
show(get_network_dns(new Session()));
show_transcript();
--EXPECT--
stdClass {dnsPrimary: "no", dnsSecondary: "such"}
TRACE[time]:Entering get_network_dns:<>
thread handle taken
session of "admin"
read: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv6Manager.sh -g dns
report: Failed "Failed to get DNS addresses: no such file" http/src/network
TRACE[time]:Exiting get_network_dns:<>
thread handle released
