--TEST--
An agent that sends version 2 traps is not shown with version 1 traps on.
--FILE--
<?php
include 'scripted_platform.inc';
answer('IMgmtAppConfig.getSNMPVersions', 'Succeeded', 5);
answer('IMgmtAppConfig.getAuthTrapsEnabled', 'Succeeded', 1);
answer('IMgmtAppConfig.getReadCommunity', 'Succeeded', 'public');
show(get_snmp_settings(new Session()));
show_transcript();
--EXPECT--
stdClass {version1: false, version2: false, version3: false, trap1: false, trap2: true, algorithm: "MD5", encryption: false, port: integer 161, auth_traps_enabled: true, community_name: "public"}
TRACE[time]:Entering get_snmp_settings:<>
thread handle taken
TRACE[time]:Before slp->getAppMgmtConfigInterface():<>
IMgmtAppConfig handle taken
IMgmtAppConfig.getSNMPVersions() -> Succeeded 5
TRACE[time]:Found # of versions::<1>
TRACE[time]:Found version::<5>
IMgmtAppConfig.getAuthTrapsEnabled() -> Succeeded 1
TRACE[time]:SNMP auth traps are enabled::<1>
IMgmtAppConfig.getReadCommunity() -> Succeeded public
TRACE[time]:SNMP community::<public>
TRACE[time]:Exiting get_snmp_settings:<>
IMgmtAppConfig handle released
thread handle released
