--TEST--
Each read asks the services again: nothing is remembered between calls.
--FILE--
<?php
include 'scripted_platform.inc';
answer('IMgmtAppConfig.getSNMPVersions', 'Succeeded', 3, 1, 2, 4, 5);
answer('IMgmtAppConfig.getAuthTrapsEnabled', 'Succeeded', 1);
answer('IMgmtAppConfig.getReadCommunity', 'Succeeded', 'public');
show(get_snmp_settings(new Session()));
answer('IMgmtAppConfig.getSNMPVersions', 'Succeeded');
answer('IMgmtAppConfig.getAuthTrapsEnabled', 'Succeeded', 0);
answer('IMgmtAppConfig.getReadCommunity', 'Succeeded', 'other');
show(get_snmp_settings(new Session()));
--EXPECT--
stdClass {version1: true, version2: true, version3: true, trap1: true, trap2: true, algorithm: "MD5", encryption: false, port: integer 161, auth_traps_enabled: true, community_name: "public"}
stdClass {version1: false, version2: false, version3: false, trap1: true, trap2: false, algorithm: "MD5", encryption: false, port: integer 161, auth_traps_enabled: false, community_name: "other"}
