--TEST--
When the services refuse everything, each failure with a report of its own is reported, and the settings are complete all the same.
--FILE--
<?php
include 'scripted_platform.inc';
answer('IMgmtAppConfig.getSNMPVersions', 'Failed');
answer('IMgmtAppConfig.getAuthTrapsEnabled', 'Failed');
answer('IMgmtAppConfig.getReadCommunity', 'Failed');
show(get_snmp_settings(new Session()));
show_transcript();
--EXPECT--
stdClass {version1: false, version2: false, version3: false, trap1: true, trap2: false, algorithm: "MD5", encryption: false, port: integer 161, auth_traps_enabled: false, community_name: ""}
TRACE[time]:Entering get_snmp_settings:<>
thread handle taken
TRACE[time]:Before slp->getAppMgmtConfigInterface():<>
IMgmtAppConfig handle taken
IMgmtAppConfig.getSNMPVersions() -> Failed
TRACE[time]:Found # of versions::<0>
IMgmtAppConfig.getAuthTrapsEnabled() -> Failed
report: Failed "Could not get SNMP traps enabled" http/src/network
TRACE[time]:SNMP auth traps are enabled::<0>
IMgmtAppConfig.getReadCommunity() -> Failed
report: Failed "Could not get SNMP read community" http/src/network
TRACE[time]:SNMP community::<>
TRACE[time]:Exiting get_snmp_settings:<>
IMgmtAppConfig handle released
thread handle released
