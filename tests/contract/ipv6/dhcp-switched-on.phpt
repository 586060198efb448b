--TEST--
Switching IPv6 DHCP on passes "on" to the script. No service is asked and no session attached.
--FILE--
<?php
include 'scripted_platform.inc';
answer(IPV6 . '-c -d on', exits(0));
show(set_ipv6_dhcp_enabled(new Session(), true));
show_transcript();
--EXPECT--
null
TRACE[time]:Entering set_ipv6_dhcp_enabled:<>
TRACE[time]:DHCP is being ENABLED:<>
run: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv6Manager.sh -c -d on
TRACE[time]:Exiting set_ipv6_dhcp_enabled:<>
