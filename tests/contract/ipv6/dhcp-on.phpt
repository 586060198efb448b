--TEST--
IPv6 DHCP is on while its flag file is there; no script is asked.
--FILE--
<?php
include 'scripted_platform.inc';
append_to(IPV6_DHCP_FILE, '');
show(is_ipv6_dhcp_enabled());
show_transcript();
--EXPECT--
true
TRACE[time]:Entering is_ipv6_dhcp_enabled:<>
TRACE[time]:IPv6 DHCP was enabled:<>
TRACE[time]:Exiting is_ipv6_dhcp_enabled:<>
