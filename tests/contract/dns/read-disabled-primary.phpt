--TEST--
The word "disabled" in the first place stands for no primary server; the secondary one is read behind it.
--FILE--
<?php
include 'scripted_platform.inc';
answer(IPV6 . '-g dns', exits(0), 'disabled 10.0.0.2');
show(get_network_dns(new Session()));
show_transcript();
--EXPECT--
stdClass {dnsPrimary: "", dnsSecondary: "10.0.0.2"}
TRACE[time]:Entering get_network_dns:<>
thread handle taken
session of "admin"
read: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv6Manager.sh -g dns
TRACE[time]:Exiting get_network_dns:<>
thread handle released
