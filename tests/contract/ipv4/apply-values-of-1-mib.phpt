--TEST--
Texts of 1 MiB reach the command line whole.
--FILE--
<?php
include 'scripted_platform.inc';
$long = str_repeat('0123456789abcdef', 65536);
$settings = new Ipv4Settings();
$settings->ip = $settings->netmask = $settings->gateway = $long;
answer('gethostname', 'library');
answer(IPV4 . "-c -s $long?$long?$long", exits(0));
set_network_configuration_ipv4(new Session(), $settings);
forget_transcript();
run_thread();
echo str_replace($long, 'LONG', masked_transcript());
--EXPECT--
TRACE[time]:Entering set_network_ipv4:<>
usleep: 3000000
gethostname: into 64 bytes
run: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv4Manager.sh -c -s LONG?LONG?LONG
TRACE[time]:Leaving set_network_ipv4:<>
