--TEST--
The worker applies what the settings were at the call, not what the page makes of them afterwards.
--FILE--
<?php
include 'scripted_platform.inc';
$settings = new Ipv6Settings();
answer(IPV6 . '-c -s 2001:db8::10/64?2001:db8::1', exits(0));
set_network_configuration_ipv6(new Session(), $settings);
$settings->staticEnabled = false;
$settings->ipStatic = '2001:db8::99';
$settings->prefix = '99';
$settings->gateway = '2001:db8::9';
forget_transcript();
run_thread();
show_transcript();
--EXPECT--
TRACE[time]:Entering set_network_ipv6:<>
TRACE[time]:Entering setIPv6StaticIP(), address::<2001:db8::10/64?2001:db8::1>
run: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv6Manager.sh -c -s 2001:db8::10/64?2001:db8::1


Data was: 2001:db8::10, 2001:db8::1, 64

TRACE[time]:The new Network settings have been applied!:<>
TRACE[time]:Leaving set_network_ipv6:<>
