--TEST--
Enabling IPv6 touches its flag file. No service is asked and no session attached.
--FILE--
<?php
include 'scripted_platform.inc';
answer(WRAPPER . '/bin/touch ' . IPV6_ENABLED_FILE, exits(0));
show(set_ipv6_enabled(new Session(), true));
show_transcript();
--EXPECT--
null
TRACE[time]:Entering set_ipv6_enabled:<>
run: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/touch /home/embedded/library/CoreService/dat/ipv6Enabled
TRACE[time]:Exiting set_ipv6_enabled:<>
