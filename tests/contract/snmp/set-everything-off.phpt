--TEST--
With everything off, version 3 is set alone; the community is set and the agent restarted all the same.
--FILE--
<?php
include 'scripted_platform.inc';
answer('IMgmtAppConfig.setSNMPVersions', 'Succeeded');
answer('IMgmtAppConfig.setAuthTrapsEnabled', 'Succeeded');
answer('IMgmtAppConfig.setReadCommunity', 'Succeeded');
answer('IMgmtAppConfig.restartSNMP', 'Succeeded');
$settings = new SnmpSettings();
$settings->version1 = false;
$settings->trap1 = false;
$settings->trap2 = false;
$settings->auth_traps_enabled = false;
show(set_snmp_settings(new Session(), $settings));
show_transcript();
--EXPECT--
null
TRACE[time]:Entering set_snmp_settings:<>
thread handle taken
IMgmtAppConfig handle taken
TRACE[time]:Disabling SNMP:<>
IMgmtAppConfig.setSNMPVersions(3) -> Succeeded
TRACE[time]:setting community name::<private>
TRACE[time]:setting authTrapsEnabled::<0>
IMgmtAppConfig.setAuthTrapsEnabled(false) -> Succeeded
IMgmtAppConfig.setReadCommunity("private") -> Succeeded
IMgmtAppConfig.restartSNMP() -> Succeeded
TRACE[time]:Exiting set_snmp_settings:<>
IMgmtAppConfig handle released
thread handle released
