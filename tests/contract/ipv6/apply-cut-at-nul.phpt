--TEST--
A text counts up to its first NUL.
--FILE--
<?php
include 'scripted_platform.inc';
$settings = new Ipv6Settings();
$settings->ipStatic = "2001:db8::10\0; reboot";
$settings->prefix = "64\0";
$settings->gateway = "\0" . '2001:db8::1';
answer(IPV6 . '-c -s 2001:db8::10/64?', exits(0));
set_network_configuration_ipv6(new Session(), $settings);
run_thread();
show_lines('/^run|^Data|Leaving/');
--EXPECT--
run: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv6Manager.sh -c -s 2001:db8::10/64?
Data was: 2001:db8::10, , 64
TRACE[time]:Leaving set_network_ipv6:<>
