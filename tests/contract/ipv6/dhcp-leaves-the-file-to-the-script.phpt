--TEST--
The flag file of IPv6 DHCP is the script's: it is neither made, removed nor looked at when DHCP is switched.
--FILE--
<?php
include 'scripted_platform.inc';
answer(IPV6 . '-c -d on', exits(0));
answer(IPV6 . '-c -d off', exits(0));
set_ipv6_dhcp_enabled(new Session(), true);
show(file_exists(IPV6_DHCP_FILE));
append_to(IPV6_DHCP_FILE, 'content');
set_ipv6_dhcp_enabled(new Session(), false);
show(implode('', file(IPV6_DHCP_FILE)));
show(is_ipv6_dhcp_enabled());
show_lines('/^report/');
--EXPECT--
false
"content"
true
