--TEST--
The content of the flag file of IPv6 DHCP has no meaning, and each call looks for the file again.
--FILE--
<?php
include 'scripted_platform.inc';
append_to(IPV6_DHCP_FILE, "off\n");
show(is_ipv6_dhcp_enabled(new Session()));
unlink(IPV6_DHCP_FILE);
show(is_ipv6_dhcp_enabled(new Session()));
symlink(platform_file('elsewhere'), IPV6_DHCP_FILE);
show(is_ipv6_dhcp_enabled(new Session()));
--EXPECT--
true
false
false
