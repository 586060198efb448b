--TEST--
A report carries the code that the operation answered, also when that is zero.
--FILE--
<?php
include 'scripted_platform.inc';
answer('IMgmtAppConfig.setSNMPVersions', '0x00000000');
answer('IMgmtAppConfig.setAuthTrapsEnabled', '0x00012345');
answer('IMgmtAppConfig.setReadCommunity', '0x7FFFFFFF');
answer('IMgmtAppConfig.restartSNMP', '0x00050040');
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
IMgmtAppConfig.setSNMPVersions(3 1 2 4 5) -> 0x00000000
report: 0x00000000 "Could not set SNMP versions" http/src/network
TRACE[time]:setting community name::<private>
TRACE[time]:setting authTrapsEnabled::<1>
IMgmtAppConfig.setAuthTrapsEnabled(true) -> 0x00012345
report: 0x00012345 "Could not set auth traps enabled" http/src/network
IMgmtAppConfig.setReadCommunity("private") -> 0x7FFFFFFF
report: 0x7FFFFFFF "Could not set the community" http/src/network
IMgmtAppConfig.restartSNMP() -> 0x00050040
report: 0x00050040 "Could not restart SNMP" http/src/network
TRACE[time]:Exiting set_snmp_settings:<>
IMgmtAppConfig handle released
thread handle released
