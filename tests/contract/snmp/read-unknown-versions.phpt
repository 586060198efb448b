--TEST--
Version numbers that mean nothing are logged, as integers, and set no property.
--FILE--
<?php
include 'scripted_platform.inc';
answer('IMgmtAppConfig.getSNMPVersions', 'Succeeded', 0, 6, 7, 256, 260, '0x7FFFFFFF', '0x80000001', '0xFFFFFFFF');
answer('IMgmtAppConfig.getAuthTrapsEnabled', 'Succeeded', 1);
answer('IMgmtAppConfig.getReadCommunity', 'Succeeded', 'public');
show(get_snmp_settings(new Session()));
show_transcript();
--EXPECT--
stdClass {version1: false, version2: false, version3: false, trap1: true, trap2: false, algorithm: "MD5", encryption: false, port: integer 161, auth_traps_enabled: true, community_name: "public"}
TRACE[time]:Entering get_snmp_settings:<>
thread handle taken
TRACE[time]:Before slp->getAppMgmtConfigInterface():<>
IMgmtAppConfig handle taken
IMgmtAppConfig.getSNMPVersions() -> Succeeded 0 6 7 256 260 0x7FFFFFFF 0x80000001 0xFFFFFFFF
TRACE[time]:Found # of versions::<8>
TRACE[time]:Found version::<0>
TRACE[time]:Found version::<6>
TRACE[time]:Found version::<7>
TRACE[time]:Found version::<256>
TRACE[time]:Found version::<260>
TRACE[time]:Found version::<2147483647>
TRACE[time]:Found version::<-2147483647>
TRACE[time]:Found version::<-1>
IMgmtAppConfig.getAuthTrapsEnabled() -> Succeeded 1
TRACE[time]:SNMP auth traps are enabled::<1>
IMgmtAppConfig.getReadCommunity() -> Succeeded public
TRACE[time]:SNMP community::<public>
TRACE[time]:Exiting get_snmp_settings:<>
IMgmtAppConfig handle released
thread handle released
