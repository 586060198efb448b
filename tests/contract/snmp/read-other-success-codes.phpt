--TEST--
Every code with the top bit set is a success: nothing is reported.
--FILE--
<?php
include 'scripted_platform.inc';
answer('IMgmtAppConfig.getSNMPVersions', '0x80000001', 1);
answer('IMgmtAppConfig.getAuthTrapsEnabled', '0xC0050006', 0);
answer('IMgmtAppConfig.getReadCommunity', '0xFFFFFFFF', 'secret');
show(get_snmp_settings(new Session()));
show_transcript();
--EXPECT--
stdClass {version1: true, version2: false, version3: false, trap1: true, trap2: false, algorithm: "MD5", encryption: false, port: integer 161, auth_traps_enabled: false, community_name: "secret"}
TRACE[time]:Entering get_snmp_settings:<>
thread handle taken
TRACE[time]:Before slp->getAppMgmtConfigInterface():<>
IMgmtAppConfig handle taken
IMgmtAppConfig.getSNMPVersions() -> 0x80000001 1
TRACE[time]:Found # of versions::<1>
TRACE[time]:Found version::<1>
IMgmtAppConfig.getAuthTrapsEnabled() -> 0xC0050006 0
TRACE[time]:SNMP auth traps are enabled::<0>
IMgmtAppConfig.getReadCommunity() -> 0xFFFFFFFF secret
TRACE[time]:SNMP community::<secret>
TRACE[time]:Exiting get_snmp_settings:<>
IMgmtAppConfig handle released
thread handle released
