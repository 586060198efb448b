--TEST--
A text of nothing but a NUL in "staticEnabled" is a text all the same: it means a static address.
--FILE--
<?php
include 'scripted_platform.inc';
$settings = new Ipv6Settings();
$settings->staticEnabled = "\0";
answer(IPV6 . '-c -s 2001:db8::10/64?2001:db8::1', exits(0));
set_network_configuration_ipv6(new Session(), $settings);
run_thread();
show_lines('/^run|Leaving/');
--EXPECT--
run: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv6Manager.sh -c -s 2001:db8::10/64?2001:db8::1
TRACE[time]:Leaving set_network_ipv6:<>
