--TEST--
A flag is on when its value is true to the language.
--FILE--
<?php
include 'scripted_platform.inc';
answer('IMgmtAppConfig.setSNMPVersions', 'Succeeded');
answer('IMgmtAppConfig.setAuthTrapsEnabled', 'Succeeded');
answer('IMgmtAppConfig.setReadCommunity', 'Succeeded');
answer('IMgmtAppConfig.restartSNMP', 'Succeeded');
$settings = new SnmpSettings();
$values = array(true, 1, -1, 0.5, '1', 'on', 'false', '00', ' ', array('on'), false, null, 0, 0.0, '', '0');
foreach ($values as $value) {
  $settings->version1 = $settings->trap1 = $settings->trap2 = $settings->auth_traps_enabled = $value;
  set_snmp_settings(new Session(), $settings);
  echo text_of($value), "\n";
  show_lines('/set(SNMPVersions|AuthTrapsEnabled)/');
}
--EXPECT--
true
IMgmtAppConfig.setSNMPVersions(3 1 2 4 5) -> Succeeded
IMgmtAppConfig.setAuthTrapsEnabled(true) -> Succeeded
integer 1
IMgmtAppConfig.setSNMPVersions(3 1 2 4 5) -> Succeeded
IMgmtAppConfig.setAuthTrapsEnabled(true) -> Succeeded
integer -1
IMgmtAppConfig.setSNMPVersions(3 1 2 4 5) -> Succeeded
IMgmtAppConfig.setAuthTrapsEnabled(true) -> Succeeded
double 0.5
IMgmtAppConfig.setSNMPVersions(3 1 2 4 5) -> Succeeded
IMgmtAppConfig.setAuthTrapsEnabled(true) -> Succeeded
"1"
IMgmtAppConfig.setSNMPVersions(3 1 2 4 5) -> Succeeded
IMgmtAppConfig.setAuthTrapsEnabled(true) -> Succeeded
"on"
IMgmtAppConfig.setSNMPVersions(3 1 2 4 5) -> Succeeded
IMgmtAppConfig.setAuthTrapsEnabled(true) -> Succeeded
"false"
IMgmtAppConfig.setSNMPVersions(3 1 2 4 5) -> Succeeded
IMgmtAppConfig.setAuthTrapsEnabled(true) -> Succeeded
"00"
IMgmtAppConfig.setSNMPVersions(3 1 2 4 5) -> Succeeded
IMgmtAppConfig.setAuthTrapsEnabled(true) -> Succeeded
" "
IMgmtAppConfig.setSNMPVersions(3 1 2 4 5) -> Succeeded
IMgmtAppConfig.setAuthTrapsEnabled(true) -> Succeeded
array(0: "on")
IMgmtAppConfig.setSNMPVersions(3 1 2 4 5) -> Succeeded
IMgmtAppConfig.setAuthTrapsEnabled(true) -> Succeeded
false
IMgmtAppConfig.setSNMPVersions(3) -> Succeeded
IMgmtAppConfig.setAuthTrapsEnabled(false) -> Succeeded
null
IMgmtAppConfig.setSNMPVersions(3) -> Succeeded
IMgmtAppConfig.setAuthTrapsEnabled(false) -> Succeeded
integer 0
IMgmtAppConfig.setSNMPVersions(3) -> Succeeded
IMgmtAppConfig.setAuthTrapsEnabled(false) -> Succeeded
double 0
IMgmtAppConfig.setSNMPVersions(3) -> Succeeded
IMgmtAppConfig.setAuthTrapsEnabled(false) -> Succeeded
""
IMgmtAppConfig.setSNMPVersions(3) -> Succeeded
IMgmtAppConfig.setAuthTrapsEnabled(false) -> Succeeded
"0"
IMgmtAppConfig.setSNMPVersions(3) -> Succeeded
IMgmtAppConfig.setAuthTrapsEnabled(false) -> Succeeded
