--TEST--
An authentication trap setting that the services refuse is reported; the other settings are made.
--FILE--
<?php
include 'scripted_platform.inc';
answer('IMgmtAppConfig.setSNMPVersions', 'Succeeded');
answer('IMgmtAppConfig.setAuthTrapsEnabled', 'Failed');
answer('IMgmtAppConfig.setReadCommunity', 'Succeeded');
answer('IMgmtAppConfig.restartSNMP', 'Succeeded');
show(set_snmp_settings(new Session(), new SnmpSettings()));
show_transcript();
--EXPECT--
null
TRACE[time]:Entering set_snmp_settings:<>
thread handle taken
IMgmtAppConfig handle taken
TRACE[time]:Enabling SNMP:<>
TRACE[time]:Enabling Trap1:<>
TRACE[time]:Enabling Trap2:<>
IMgmtAppConfig.setSNMPVersions(3 1 2 4 5) -> Succeeded
TRACE[time]:setting community name::<private>
TRACE[time]:setting authTrapsEnabled::<1>
IMgmtAppConfig.setAuthTrapsEnabled(true) -> Failed
report: Failed "Could not set auth traps enabled" http/src/network
IMgmtAppConfig.setReadCommunity("private") -> Succeeded
IMgmtAppConfig.restartSNMP() -> Succeeded
TRACE[time]:Exiting set_snmp_settings:<>
IMgmtAppConfig handle released
thread handle released
