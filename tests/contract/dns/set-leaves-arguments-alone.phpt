--TEST--
Neither the session nor the settings are changed.
--FILE--
<?php
include 'scripted_platform.inc';
$session = new Session();
$settings = new stdClass();
$settings->dnsPrimary = 10;
$settings->other = 'stays';
answer(IPV6 . '-D "10 "', exits(0), '');
set_network_dns($session, $settings);
show($session);
show($settings);
show_lines('/^report/');
--EXPECT--
Session {user: "admin"}
stdClass {dnsPrimary: integer 10, other: "stays"}
