--TEST--
When the configuration service is not there, its operations fail like refused ones.
--FILE--
<?php
include 'scripted_platform.inc';
answer('IMgmtAppConfig', 'empty');
show(get_snmp_settings(new Session()));
show_transcript();
--EXPECT--
stdClass {version1: false, version2: false, version3: false, trap1: true, trap2: false, algorithm: "MD5", encryption: false, port: integer 161, auth_traps_enabled: false, community_name: ""}
TRACE[time]:Entering get_snmp_settings:<>
thread handle taken
TRACE[time]:Before slp->getAppMgmtConfigInterface():<>
IMgmtAppConfig handle taken, empty
TRACE[time]:Found # of versions::<0>
report: Failed "Could not get SNMP traps enabled" http/src/network
TRACE[time]:SNMP auth traps are enabled::<0>
report: Failed "Could not get SNMP read community" http/src/network
TRACE[time]:SNMP community::<>
TRACE[time]:Exiting get_snmp_settings:<>
thread handle released
