--TEST--
Addresses and prefix go to the script in the page's notation, neither expanded nor checked.
--FILE--
<?php
include 'scripted_platform.inc';
$settings = new Ipv6Settings();
$settings->ipStatic = '2001:0DB8::00AB%eth0';
$settings->prefix = '999';
$settings->gateway = '10.0.0.1';
answer(IPV6 . '-c -s 2001:0DB8::00AB%eth0/999?10.0.0.1', exits(0));
set_network_configuration_ipv6(new Session(), $settings);
run_thread();
show_lines('/^run|Leaving/');
--EXPECT--
run: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv6Manager.sh -c -s 2001:0DB8::00AB%eth0/999?10.0.0.1
TRACE[time]:Leaving set_network_ipv6:<>
