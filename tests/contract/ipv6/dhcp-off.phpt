--TEST--
IPv6 DHCP is off while there is no flag file; no script is asked.
--FILE--
<?php
include 'scripted_platform.inc';
show(is_ipv6_dhcp_enabled());
show_transcript();
--EXPECT--
false
TRACE[time]:Entering is_ipv6_dhcp_enabled:<>
TRACE[time]:IPv6 DHCP was NOT enabled:<>
TRACE[time]:Exiting is_ipv6_dhcp_enabled:<>
