--TEST--
Versions 2 and 3, algorithm, encryption and port are not read: version 2 is not switched on without version 1, version 3 not off.
--FILE--
<?php
include 'scripted_platform.inc';
answer('IMgmtAppConfig.setSNMPVersions', 'Succeeded');
answer('IMgmtAppConfig.setAuthTrapsEnabled', 'Succeeded');
answer('IMgmtAppConfig.setReadCommunity', 'Succeeded');
answer('IMgmtAppConfig.restartSNMP', 'Succeeded');
class OtherSettings {
  var $version1 = false;
  var $version2 = true;
  var $version3 = false;
  var $trap1 = false;
  var $trap2 = false;
  var $algorithm = 'SHA';
  var $encryption = true;
  var $port = 1161;
  var $auth_traps_enabled = false;
  var $community_name = 'private';
}
show(set_snmp_settings(new Session(), new OtherSettings()));
show_transcript();
--EXPECT--
null
TRACE[time]:Entering set_snmp_settings:<>
thread handle taken
IMgmtAppConfig handle taken
TRACE[time]:Disabling SNMP:<>
IMgmtAppConfig.setSNMPVersions(3) -> Succeeded
TRACE[time]:setting community name::<private>
TRACE[time]:setting authTrapsEnabled::<0>
IMgmtAppConfig.setAuthTrapsEnabled(false) -> Succeeded
IMgmtAppConfig.setReadCommunity("private") -> Succeeded
IMgmtAppConfig.restartSNMP() -> Succeeded
TRACE[time]:Exiting set_snmp_settings:<>
IMgmtAppConfig handle released
thread handle released
