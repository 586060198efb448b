--TEST--
Neither the session nor the settings are changed, by the call or by the worker.
--FILE--
<?php
include 'scripted_platform.inc';
$session = new Session();
$settings = new Ipv6Settings();
$settings->prefix = 64;
answer(IPV6 . '-c -s 2001:db8::10/64?2001:db8::1', exits(0));
set_network_configuration_ipv6($session, $settings);
run_thread();
show($session);
show($settings);
show_lines('/Leaving/');
--EXPECT--
Session {user: "admin"}
Ipv6Settings {staticEnabled: true, ipStatic: "2001:db8::10", gateway: "2001:db8::1", prefix: integer 64}
TRACE[time]:Leaving set_network_ipv6:<>
