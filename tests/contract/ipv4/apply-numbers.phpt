--TEST--
A number or true where a text is wanted is the text that the engine makes of it.
--FILE--
<?php
include 'scripted_platform.inc';
$settings = new Ipv4Settings();
$settings->hostname = 7;
$settings->ip = 10;
$settings->netmask = 0.5;
$settings->gateway = true;
answer('gethostname', '7');
answer(IPV4 . '-c -s 10?0.5?1', exits(0));
set_network_configuration_ipv4(new Session(), $settings);
run_thread();
show_lines('/^run|Leaving/');
--EXPECT--
run: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv4Manager.sh -c -s 10?0.5?1
TRACE[time]:Leaving set_network_ipv4:<>
