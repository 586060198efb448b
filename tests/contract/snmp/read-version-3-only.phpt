--TEST--
An agent that reports only version 3 is shown with version 1 traps on.
--FILE--
<?php
include 'scripted_platform.inc';
answer('IMgmtAppConfig.getSNMPVersions', 'Succeeded', 3);
answer('IMgmtAppConfig.getAuthTrapsEnabled', 'Succeeded', 1);
answer('IMgmtAppConfig.getReadCommunity', 'Succeeded', 'public');
show(get_snmp_settings(new Session()));
show_transcript();
--EXPECT--
stdClass {version1: false, version2: false, version3: true, trap1: true, trap2: false, algorithm: "MD5", encryption: false, port: integer 161, auth_traps_enabled: true, community_name: "public"}
TRACE[time]:Entering get_snmp_settings:<>
thread handle taken
TRACE[time]:Before slp->getAppMgmtConfigInterface():<>
IMgmtAppConfig handle taken
IMgmtAppConfig.getSNMPVersions() -> Succeeded 3
TRACE[time]:Found # of versions::<1>
TRACE[time]:Found version::<3>
IMgmtAppConfig.getAuthTrapsEnabled() -> Succeeded 1
TRACE[time]:SNMP auth traps are enabled::<1>
IMgmtAppConfig.getReadCommunity() -> Succeeded public
TRACE[time]:SNMP community::<public>
TRACE[time]:Exiting get_snmp_settings:<>
IMgmtAppConfig handle released
thread handle released
