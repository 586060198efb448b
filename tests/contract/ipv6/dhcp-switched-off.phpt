--TEST--
Switching IPv6 DHCP off passes "off" to the script, also when it is off already.
--FILE--
<?php
include 'scripted_platform.inc';
answer(IPV6 . '-c -d off', exits(0));
show(set_ipv6_dhcp_enabled(new Session(), false));
show_transcript();
--EXPECT--
null
TRACE[time]:Entering set_ipv6_dhcp_enabled:<>
TRACE[time]:DHCP is being DISABLED:<>
run: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv6Manager.sh -c -d off
TRACE[time]:Exiting set_ipv6_dhcp_enabled:<>
