--TEST--
Settings that are not there are off, and a community that is not there is empty.
--FILE--
<?php
include 'scripted_platform.inc';
answer('IMgmtAppConfig.setSNMPVersions', 'Succeeded');
answer('IMgmtAppConfig.setAuthTrapsEnabled', 'Succeeded');
answer('IMgmtAppConfig.setReadCommunity', 'Succeeded');
answer('IMgmtAppConfig.restartSNMP', 'Succeeded');
class NoSettings {
}
show(set_snmp_settings(new Session(), new NoSettings()));
show_transcript();
--EXPECT--
null
TRACE[time]:Entering set_snmp_settings:<>
thread handle taken
IMgmtAppConfig handle taken
TRACE[time]:Disabling SNMP:<>
IMgmtAppConfig.setSNMPVersions(3) -> Succeeded
TRACE[time]:setting community name::<>
TRACE[time]:setting authTrapsEnabled::<0>
IMgmtAppConfig.setAuthTrapsEnabled(false) -> Succeeded
IMgmtAppConfig.setReadCommunity("") -> Succeeded
IMgmtAppConfig.restartSNMP() -> Succeeded
TRACE[time]:Exiting set_snmp_settings:<>
IMgmtAppConfig handle released
thread handle released
