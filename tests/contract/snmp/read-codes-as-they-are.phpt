--TEST--
A report carries the code that the operation answered, also when that is zero.
--FILE--
<?php
include 'scripted_platform.inc';
answer('IMgmtAppConfig.getSNMPVersions', 'Succeeded', 3);
answer('IMgmtAppConfig.getAuthTrapsEnabled', '0x00012345');
answer('IMgmtAppConfig.getReadCommunity', '0x00000000');
show(get_snmp_settings(new Session()));
show_transcript();
--EXPECT--
stdClass {version1: false, version2: false, version3: true, trap1: true, trap2: false, algorithm: "MD5", encryption: false, port: integer 161, auth_traps_enabled: false, community_name: ""}
TRACE[time]:Entering get_snmp_settings:<>
thread handle taken
TRACE[time]:Before slp->getAppMgmtConfigInterface():<>
IMgmtAppConfig handle taken
IMgmtAppConfig.getSNMPVersions() -> Succeeded 3
TRACE[time]:Found # of versions::<1>
TRACE[time]:Found version::<3>
IMgmtAppConfig.getAuthTrapsEnabled() -> 0x00012345
report: 0x00012345 "Could not get SNMP traps enabled" http/src/network
TRACE[time]:SNMP auth traps are enabled::<0>
IMgmtAppConfig.getReadCommunity() -> 0x00000000
report: 0x00000000 "Could not get SNMP read community" http/src/network
TRACE[time]:SNMP community::<>
TRACE[time]:Exiting get_snmp_settings:<>
IMgmtAppConfig handle released
thread handle released
