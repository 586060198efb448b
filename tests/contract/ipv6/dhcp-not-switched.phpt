--TEST--
A failure to switch IPv6 DHCP is reported with a code of its own, in either direction.
--FILE--
<?php
include 'scripted_platform.inc';
foreach (array(exits(1), killed_by(9), -1) as $result) {
  answer(IPV6 . '-c -d on', $result);
  answer(IPV6 . '-c -d off', $result);
  show(set_ipv6_dhcp_enabled(new Session(), true));
  show(set_ipv6_dhcp_enabled(new Session(), false));
  show_transcript();
}
--EXPECT--
null
null
TRACE[time]:Entering set_ipv6_dhcp_enabled:<>
TRACE[time]:DHCP is being ENABLED:<>
run: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv6Manager.sh -c -d on
report: 0x00050030 "Failed to configure DHCP settings - Make sure you have a valid IPv6 DHCP server running." http/src/network
TRACE[time]:Exiting set_ipv6_dhcp_enabled:<>
TRACE[time]:Entering set_ipv6_dhcp_enabled:<>
TRACE[time]:DHCP is being DISABLED:<>
run: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv6Manager.sh -c -d off
report: 0x00050030 "Failed to configure DHCP settings - Make sure you have a valid IPv6 DHCP server running." http/src/network
TRACE[time]:Exiting set_ipv6_dhcp_enabled:<>
null
null
TRACE[time]:Entering set_ipv6_dhcp_enabled:<>
TRACE[time]:DHCP is being ENABLED:<>
run: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv6Manager.sh -c -d on
report: 0x00050030 "Failed to configure DHCP settings - Make sure you have a valid IPv6 DHCP server running." http/src/network
TRACE[time]:Exiting set_ipv6_dhcp_enabled:<>
TRACE[time]:Entering set_ipv6_dhcp_enabled:<>
TRACE[time]:DHCP is being DISABLED:<>
run: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv6Manager.sh -c -d off
report: 0x00050030 "Failed to configure DHCP settings - Make sure you have a valid IPv6 DHCP server running." http/src/network
TRACE[time]:Exiting set_ipv6_dhcp_enabled:<>
null
null
TRACE[time]:Entering set_ipv6_dhcp_enabled:<>
TRACE[time]:DHCP is being ENABLED:<>
run: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv6Manager.sh -c -d on
report: 0x00050030 "Failed to configure DHCP settings - Make sure you have a valid IPv6 DHCP server running." http/src/network
TRACE[time]:Exiting set_ipv6_dhcp_enabled:<>
TRACE[time]:Entering set_ipv6_dhcp_enabled:<>
TRACE[time]:DHCP is being DISABLED:<>
run: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv6Manager.sh -c -d off
report: 0x00050030 "Failed to configure DHCP settings - Make sure you have a valid IPv6 DHCP server running." http/src/network
TRACE[time]:Exiting set_ipv6_dhcp_enabled:<>
