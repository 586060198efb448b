--TEST--
A script that fails and prints nothing is reported with nothing behind the colon and its blank; both servers are empty.
--FILE--
<?php
include 'scripted_platform.inc';
answer(IPV6 . '-g dns', exits(1), '');
show(get_network_dns(new Session()));
answer(IPV6 . '-g dns', killed_by(9), '');
show(get_network_dns(new Session()));
show_transcript();
--EXPECT--
stdClass {dnsPrimary: "", dnsSecondary: ""}
stdClass {dnsPrimary: "", dnsSecondary: ""}
TRACE[time]:Entering get_network_dns:<>
thread handle taken
session of "admin"
read: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv6Manager.sh -g dns
report: Failed "Failed to get DNS addresses: " http/src/network
TRACE[time]:Exiting get_network_dns:<>
thread handle released
TRACE[time]:Entering get_network_dns:<>
thread handle taken
session of "admin"
read: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv6Manager.sh -g dns
report: Failed "Failed to get DNS addresses: " http/src/network
TRACE[time]:Exiting get_network_dns:<>
thread handle released
