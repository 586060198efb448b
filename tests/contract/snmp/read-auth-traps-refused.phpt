--TEST--
Authentication traps that the services refuse to tell about are reported and off.
--FILE--
<?php
include 'scripted_platform.inc';
answer('IMgmtAppConfig.getSNMPVersions', 'Succeeded', 3, 4);
answer('IMgmtAppConfig.getAuthTrapsEnabled', 'Failed');
answer('IMgmtAppConfig.getReadCommunity', 'Succeeded', 'public');
show(get_snmp_settings(new Session()));
show_transcript();
--EXPECT--
stdClass {version1: false, version2: false, version3: true, trap1: true, trap2: false, algorithm: "MD5", encryption: false, port: integer 161, auth_traps_enabled: false, community_name: "public"}
TRACE[time]:Entering get_snmp_settings:<>
thread handle taken
TRACE[time]:Before slp->getAppMgmtConfigInterface():<>
IMgmtAppConfig handle taken
IMgmtAppConfig.getSNMPVersions() -> Succeeded 3 4
TRACE[time]:Found # of versions::<2>
TRACE[time]:Found version::<3>
TRACE[time]:Found version::<4>
IMgmtAppConfig.getAuthTrapsEnabled() -> Failed
report: Failed "Could not get SNMP traps enabled" http/src/network
TRACE[time]:SNMP auth traps are enabled::<0>
IMgmtAppConfig.getReadCommunity() -> Succeeded public
TRACE[time]:SNMP community::<public>
TRACE[time]:Exiting get_snmp_settings:<>
IMgmtAppConfig handle released
thread handle released
