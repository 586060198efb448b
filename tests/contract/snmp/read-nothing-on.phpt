--TEST--
Settings that are all off and an empty community are shown like that; version 1 traps are on.
--FILE--
<?php
include 'scripted_platform.inc';
answer('IMgmtAppConfig.getSNMPVersions', 'Succeeded');
answer('IMgmtAppConfig.getAuthTrapsEnabled', 'Succeeded', 0);
answer('IMgmtAppConfig.getReadCommunity', 'Succeeded', '');
show(get_snmp_settings(new Session()));
show_transcript();
--EXPECT--
stdClass {version1: false, version2: false, version3: false, trap1: true, trap2: false, algorithm: "MD5", encryption: false, port: integer 161, auth_traps_enabled: false, community_name: ""}
TRACE[time]:Entering get_snmp_settings:<>
thread handle taken
TRACE[time]:Before slp->getAppMgmtConfigInterface():<>
IMgmtAppConfig handle taken
IMgmtAppConfig.getSNMPVersions() -> Succeeded
TRACE[time]:Found # of versions::<0>
IMgmtAppConfig.getAuthTrapsEnabled() -> Succeeded 0
TRACE[time]:SNMP auth traps are enabled::<0>
IMgmtAppConfig.getReadCommunity() -> Succeeded 
TRACE[time]:SNMP community::<>
TRACE[time]:Exiting get_snmp_settings:<>
IMgmtAppConfig handle released
thread handle released
