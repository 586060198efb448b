--TEST--
When the services refuse everything, each step is tried and reported.
--FILE--
<?php
include 'scripted_platform.inc';
answer('IMgmtAppConfig.setSNMPVersions', 'Failed');
answer('IMgmtAppConfig.setAuthTrapsEnabled', 'Failed');
answer('IMgmtAppConfig.setReadCommunity', 'Failed');
answer('IMgmtAppConfig.restartSNMP', 'Failed');
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
IMgmtAppConfig.setSNMPVersions(3 1 2 4 5) -> Failed
report: Failed "Could not set SNMP versions" http/src/network
TRACE[time]:setting community name::<private>
TRACE[time]:setting authTrapsEnabled::<1>
IMgmtAppConfig.setAuthTrapsEnabled(true) -> Failed
report: Failed "Could not set auth traps enabled" http/src/network
IMgmtAppConfig.setReadCommunity("private") -> Failed
report: Failed "Could not set the community" http/src/network
IMgmtAppConfig.restartSNMP() -> Failed
report: Failed "Could not restart SNMP" http/src/network
TRACE[time]:Exiting set_snmp_settings:<>
IMgmtAppConfig handle released
thread handle released
