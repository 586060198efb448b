--TEST--
Every code with the top bit set is a success: nothing is reported.
--FILE--
<?php
include 'scripted_platform.inc';
answer('IMgmtAppConfig.setSNMPVersions', '0x80000001');
answer('IMgmtAppConfig.setAuthTrapsEnabled', '0xC0050006');
answer('IMgmtAppConfig.setReadCommunity', '0xFFFFFFFF');
answer('IMgmtAppConfig.restartSNMP', '0x80000002');
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
IMgmtAppConfig.setSNMPVersions(3 1 2 4 5) -> 0x80000001
TRACE[time]:setting community name::<private>
TRACE[time]:setting authTrapsEnabled::<1>
IMgmtAppConfig.setAuthTrapsEnabled(true) -> 0xC0050006
IMgmtAppConfig.setReadCommunity("private") -> 0xFFFFFFFF
IMgmtAppConfig.restartSNMP() -> 0x80000002
TRACE[time]:Exiting set_snmp_settings:<>
IMgmtAppConfig handle released
thread handle released
