--TEST--
A wrong argument is refused before anything else is done: the entry trace only, and null.
--FILE--
<?php
include 'scripted_platform.inc';
show(set_ipv6_dhcp_enabled());
show(set_ipv6_dhcp_enabled(new Session()));
show(set_ipv6_dhcp_enabled(new Session(), true, true));
show(set_ipv6_dhcp_enabled('admin', true));
show(set_ipv6_dhcp_enabled(null, false));
show(set_ipv6_dhcp_enabled(new Session(), array()));
show_refusals();
--EXPECT--
null
null
null
null
null
null
TRACE[time]:Entering set_ipv6_dhcp_enabled:<>
Warning: set_ipv6_dhcp_enabled() ...
TRACE[time]:Entering set_ipv6_dhcp_enabled:<>
Warning: set_ipv6_dhcp_enabled() ...
TRACE[time]:Entering set_ipv6_dhcp_enabled:<>
Warning: set_ipv6_dhcp_enabled() ...
TRACE[time]:Entering set_ipv6_dhcp_enabled:<>
Warning: set_ipv6_dhcp_enabled() ...
TRACE[time]:Entering set_ipv6_dhcp_enabled:<>
Warning: set_ipv6_dhcp_enabled() ...
TRACE[time]:Entering set_ipv6_dhcp_enabled:<>
Warning: set_ipv6_dhcp_enabled() ...
