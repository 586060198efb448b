--TEST--
Reading and setting take thread and configuration handles and attach no session; the thread handle is released last.
--FILE--
<?php
include 'scripted_platform.inc';
answer('IMgmtAppConfig.setSNMPVersions', 'Succeeded');
answer('IMgmtAppConfig.setAuthTrapsEnabled', 'Succeeded');
answer('IMgmtAppConfig.setReadCommunity', 'Succeeded');
answer('IMgmtAppConfig.restartSNMP', 'Succeeded');
answer('IMgmtAppConfig.getSNMPVersions', 'Succeeded', 3);
answer('IMgmtAppConfig.getAuthTrapsEnabled', 'Succeeded', 0);
answer('IMgmtAppConfig.getReadCommunity', 'Succeeded', 'public');
get_snmp_settings(new Session());
set_snmp_settings(new Session(), new SnmpSettings());
echo preg_match('/^session /m', transcript()) ? "attached\n" : "not attached\n";
show_lines('/ handle /');
--EXPECT--
not attached
thread handle taken
IMgmtAppConfig handle taken
IMgmtAppConfig handle released
thread handle released
thread handle taken
IMgmtAppConfig handle taken
IMgmtAppConfig handle released
thread handle released
