--TEST--
Disabling IPv6 removes its flag file.
--FILE--
<?php
include 'scripted_platform.inc';
append_to(IPV6_ENABLED_FILE, '');
answer(WRAPPER . '/bin/rm ' . IPV6_ENABLED_FILE, exits(0));
show(set_ipv6_enabled(new Session(), false));
show_transcript();
--EXPECT--
null
TRACE[time]:Entering set_ipv6_enabled:<>
run: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/rm /home/embedded/library/CoreService/dat/ipv6Enabled
TRACE[time]:Exiting set_ipv6_enabled:<>
