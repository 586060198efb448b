--TEST--
A wrong argument is refused before anything else is done: the entry trace only, and null.
--FILE--
<?php
include 'scripted_platform.inc';
append_to(IPV6_ENABLED_FILE, '');
show(set_ipv6_enabled());
show(set_ipv6_enabled(new Session()));
show(set_ipv6_enabled(new Session(), true, true));
show(set_ipv6_enabled('admin', true));
show(set_ipv6_enabled(null, false));
show(set_ipv6_enabled(new Session(), array()));
show(set_ipv6_enabled(new Session(), new Session()));
show(set_ipv6_enabled(true, new Session()));
show_refusals();
--EXPECT--
null
null
null
null
null
null
null
null
TRACE[time]:Entering set_ipv6_enabled:<>
Warning: set_ipv6_enabled() ...
TRACE[time]:Entering set_ipv6_enabled:<>
Warning: set_ipv6_enabled() ...
TRACE[time]:Entering set_ipv6_enabled:<>
Warning: set_ipv6_enabled() ...
TRACE[time]:Entering set_ipv6_enabled:<>
Warning: set_ipv6_enabled() ...
TRACE[time]:Entering set_ipv6_enabled:<>
Warning: set_ipv6_enabled() ...
TRACE[time]:Entering set_ipv6_enabled:<>
Warning: set_ipv6_enabled() ...
TRACE[time]:Entering set_ipv6_enabled:<>
Warning: set_ipv6_enabled() ...
TRACE[time]:Entering set_ipv6_enabled:<>
Warning: set_ipv6_enabled() ...
