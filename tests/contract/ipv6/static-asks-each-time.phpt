--TEST--
Each call runs the script again; arguments are ignored.
--FILE--
<?php
include 'scripted_platform.inc';
answer(IPV6 . '-g static', exits(0), '2001:db8::10/64?2001:db8::1');
show(is_ipv6_static_enabled());
answer(IPV6 . '-g static', exits(0), '');
show(is_ipv6_static_enabled(new Session()));
--EXPECT--
true
false
