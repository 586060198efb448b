--TEST--
The community is what the services have written, also when they then say that they failed.
--FILE--
<?php
include 'scripted_platform.inc';
answer('IMgmtAppConfig.getSNMPVersions', 'Succeeded', 3, 4);
answer('IMgmtAppConfig.getAuthTrapsEnabled', 'Succeeded', 1);
answer('IMgmtAppConfig.getReadCommunity', 'Failed', 'public');
$settings = get_snmp_settings(new Session());
show($settings->community_name);
show_lines('/ommunity/');
--EXPECT--
"public"
IMgmtAppConfig.getReadCommunity() -> Failed public
report: Failed "Could not get SNMP read community" http/src/network
TRACE[time]:SNMP community::<public>
