--TEST--
Neither the session nor the settings object is changed by a call.
--FILE--
<?php
include 'scripted_platform.inc';
answer('IMgmtAppConfig.setSNMPVersions', 'Succeeded');
answer('IMgmtAppConfig.setAuthTrapsEnabled', 'Succeeded');
answer('IMgmtAppConfig.setReadCommunity', 'Succeeded');
answer('IMgmtAppConfig.restartSNMP', 'Succeeded');
$session = new Session();
$settings = new SnmpSettings();
set_snmp_settings($session, $settings);
show($session);
show($settings);
--EXPECT--
Session {user: "admin"}
SnmpSettings {version1: true, trap1: true, trap2: true, auth_traps_enabled: true, community_name: "private"}
