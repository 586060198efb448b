--TEST--
Whether authentication traps are on is traced as the number that the services wrote, as a word or as a byte; every number but 0 is on.
--FILE--
<?php
include 'scripted_platform.inc';
answer('IMgmtAppConfig.getSNMPVersions', 'Succeeded');
answer('IMgmtAppConfig.getReadCommunity', 'Succeeded', 'public');

function read_number($number, $width) {
  answer('IMgmtAppConfig.getAuthTrapsEnabled', 'Succeeded', $number, $width);
  $settings = get_snmp_settings(new Session());
  echo "$width $number: ", text_of($settings->auth_traps_enabled), "\n";
  show_lines('/auth traps/');
}

foreach (array(0, 1, 2, 255) as $number) read_number($number, 'byte');
foreach (array(0, 1, 2, 255, 256, 65536, 16843013, 2147483647, 4294967295) as $number) read_number($number, 'word');
--EXPECT--
byte 0: false
TRACE[time]:SNMP auth traps are enabled::<0>
byte 1: true
TRACE[time]:SNMP auth traps are enabled::<1>
byte 2: true
TRACE[time]:SNMP auth traps are enabled::<2>
byte 255: true
TRACE[time]:SNMP auth traps are enabled::<255>
word 0: false
TRACE[time]:SNMP auth traps are enabled::<0>
word 1: true
TRACE[time]:SNMP auth traps are enabled::<1>
word 2: true
TRACE[time]:SNMP auth traps are enabled::<2>
word 255: true
TRACE[time]:SNMP auth traps are enabled::<255>
word 256: true
TRACE[time]:SNMP auth traps are enabled::<256>
word 65536: true
TRACE[time]:SNMP auth traps are enabled::<65536>
word 16843013: true
TRACE[time]:SNMP auth traps are enabled::<16843013>
word 2147483647: true
TRACE[time]:SNMP auth traps are enabled::<2147483647>
word 4294967295: true
TRACE[time]:SNMP auth traps are enabled::<-1>
