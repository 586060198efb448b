--TEST--
Neither the session nor the settings are changed, by the call or by the worker.
--FILE--
<?php
include 'scripted_platform.inc';
$session = new Session();
$settings = new Ipv4Settings();
$settings->netmask = 24;
answer('gethostname', 'library');
answer(IPV4 . '-c -s 10.0.0.5?24?10.0.0.1', exits(0));
set_network_configuration_ipv4($session, $settings);
run_thread();
show($session);
show($settings);
show_lines('/Leaving/');
--EXPECT--
Session {user: "admin"}
Ipv4Settings {hostname: "library", dhcpEnabled: false, ip: "10.0.0.5", netmask: integer 24, gateway: "10.0.0.1"}
TRACE[time]:Leaving set_network_ipv4:<>
