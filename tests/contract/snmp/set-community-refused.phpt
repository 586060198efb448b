--TEST--
A community that the services refuse is reported; the agent is restarted all the same.
--FILE--
<?php
include 'scripted_platform.inc';
answer('IMgmtAppConfig.setSNMPVersions', 'Succeeded');
answer('IMgmtAppConfig.setAuthTrapsEnabled', 'Succeeded');
answer('IMgmtAppConfig.setReadCommunity', 'Failed');
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
IMgmtAppConfig.setAuthTrapsEnabled(true) -> Succeeded
IMgmtAppConfig.setReadCommunity("private") -> Failed
report: Failed "Could not set the community" http/src/network
IMgmtAppConfig.restartSNMP() -> Succeeded
TRACE[time]:Exiting set_snmp_settings:<>
IMgmtAppConfig handle released
thread handle released
