--TEST--
A community that the services refuse to give is reported and empty.
--FILE--
<?php
include 'scripted_platform.inc';
answer('IMgmtAppConfig.getSNMPVersions', 'Succeeded', 3, 4);
answer('IMgmtAppConfig.getAuthTrapsEnabled', 'Succeeded', 1);
answer('IMgmtAppConfig.getReadCommunity', 'Failed');
show(get_snmp_settings(new Session()));
show_transcript();
--EXPECT--
stdClass {version1: false, version2: false, version3: true, trap1: true, trap2: false, algorithm: "MD5", encryption: false, port: integer 161, auth_traps_enabled: true, community_name: ""}
TRACE[time]:Entering get_snmp_settings:<>
thread handle taken
TRACE[time]:Before slp->getAppMgmtConfigInterface():<>
IMgmtAppConfig handle taken
IMgmtAppConfig.getSNMPVersions() -> Succeeded 3 4
TRACE[time]:Found # of versions::<2>
TRACE[time]:Found version::<3>
TRACE[time]:Found version::<4>
IMgmtAppConfig.getAuthTrapsEnabled() -> Succeeded 1
TRACE[time]:SNMP auth traps are enabled::<1>
IMgmtAppConfig.getReadCommunity() -> Failed
report: Failed "Could not get SNMP read community" http/src/network
TRACE[time]:SNMP community::<>
TRACE[time]:Exiting get_snmp_settings:<>
IMgmtAppConfig handle released
thread handle released
