--TEST--
The community is the text that its property carries, up to the first NUL, and empty where it carries none.
--FILE--
<?php
include 'scripted_platform.inc';
answer('IMgmtAppConfig.setSNMPVersions', 'Succeeded');
answer('IMgmtAppConfig.setAuthTrapsEnabled', 'Succeeded');
answer('IMgmtAppConfig.setReadCommunity', 'Succeeded');
answer('IMgmtAppConfig.restartSNMP', 'Succeeded');
$settings = new SnmpSettings();
$values = array('0', 7, 1.5, true, 0, false, null, array('public'), "public\0private");
foreach ($values as $settings->community_name) {
  set_snmp_settings(new Session(), $settings);
  echo text_of($settings->community_name), "\n";
  show_lines('/[cC]ommunity/');
}
--EXPECT--
"0"
TRACE[time]:setting community name::<0>
IMgmtAppConfig.setReadCommunity("0") -> Succeeded
integer 7
TRACE[time]:setting community name::<7>
IMgmtAppConfig.setReadCommunity("7") -> Succeeded
double 1.5
TRACE[time]:setting community name::<1.5>
IMgmtAppConfig.setReadCommunity("1.5") -> Succeeded
true
TRACE[time]:setting community name::<1>
IMgmtAppConfig.setReadCommunity("1") -> Succeeded
integer 0
TRACE[time]:setting community name::<>
IMgmtAppConfig.setReadCommunity("") -> Succeeded
false
TRACE[time]:setting community name::<>
IMgmtAppConfig.setReadCommunity("") -> Succeeded
null
TRACE[time]:setting community name::<>
IMgmtAppConfig.setReadCommunity("") -> Succeeded
array(0: "public")
TRACE[time]:setting community name::<>
IMgmtAppConfig.setReadCommunity("") -> Succeeded
"public\000private"
TRACE[time]:setting community name::<public>
IMgmtAppConfig.setReadCommunity("public") -> Succeeded
