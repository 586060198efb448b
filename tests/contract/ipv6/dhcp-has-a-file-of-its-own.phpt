--TEST--
IPv6 and its DHCP are told by a file each: neither says anything about the other.
--FILE--
<?php
include 'scripted_platform.inc';
append_to(IPV6_DHCP_FILE, '');
show(is_ipv6_enabled());
show(is_ipv6_dhcp_enabled());
unlink(IPV6_DHCP_FILE);
append_to(IPV6_ENABLED_FILE, '');
show(is_ipv6_enabled());
show(is_ipv6_dhcp_enabled());
--EXPECT--
false
true
true
false
