--TEST--
Texts of 1 MiB reach the command line, the trace and standard error whole.
--FILE--
<?php
include 'scripted_platform.inc';
$long = str_repeat('0123456789abcdef', 65536);
$settings = new Ipv6Settings();
$settings->ipStatic = $settings->prefix = $settings->gateway = $long;
answer(IPV6 . "-c -s $long/$long?$long", exits(0));
set_network_configuration_ipv6(new Session(), $settings);
forget_transcript();
run_thread();
echo str_replace($long, 'LONG', masked_transcript());
--EXPECT--
TRACE[time]:Entering set_network_ipv6:<>
TRACE[time]:Entering setIPv6StaticIP(), address::<LONG/LONG?LONG>
run: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv6Manager.sh -c -s LONG/LONG?LONG


Data was: LONG, LONG, LONG

TRACE[time]:The new Network settings have been applied!:<>
TRACE[time]:Leaving set_network_ipv6:<>
