--TEST--
A text that is no identifier asks to delete the one of all zeros, and nothing is reported.
--FILE--
<?php
include 'scripted_platform.inc';
answer('IMgmtAppConfig.deleteTrapRegistration', 'ElementNotFound');
$texts = array(
  '',
  '1',
  'abc',
  '00000000-00000000-00000000',
  '01020304-05060708-090a0b0',
  '01020304-05060708-090a0b0c0',
  '0102030405060708090a0b0c',
  '01020304:05060708:090a0b0c',
  '0102030g-05060708-090a0b0c',
  '+1020304-05060708-090a0b0c',
  ' 01020304-05060708-090a0b0c',
  '0x020304-05060708-090a0b0c',
  "01020304-05060708\0090a0b0c",
  str_repeat('01020304-', 100)
);
foreach ($texts as $text) show(delete_snmp_trap_reg(new Session(), $text));
show_lines('/(report|Warning|deleteTrap)/');
--EXPECT--
null
null
null
null
null
null
null
null
null
null
null
null
null
null
IMgmtAppConfig.deleteTrapRegistration(00000000-00000000-00000000) -> ElementNotFound
IMgmtAppConfig.deleteTrapRegistration(00000000-00000000-00000000) -> ElementNotFound
IMgmtAppConfig.deleteTrapRegistration(00000000-00000000-00000000) -> ElementNotFound
IMgmtAppConfig.deleteTrapRegistration(00000000-00000000-00000000) -> ElementNotFound
IMgmtAppConfig.deleteTrapRegistration(00000000-00000000-00000000) -> ElementNotFound
IMgmtAppConfig.deleteTrapRegistration(00000000-00000000-00000000) -> ElementNotFound
IMgmtAppConfig.deleteTrapRegistration(00000000-00000000-00000000) -> ElementNotFound
IMgmtAppConfig.deleteTrapRegistration(00000000-00000000-00000000) -> ElementNotFound
IMgmtAppConfig.deleteTrapRegistration(00000000-00000000-00000000) -> ElementNotFound
IMgmtAppConfig.deleteTrapRegistration(00000000-00000000-00000000) -> ElementNotFound
IMgmtAppConfig.deleteTrapRegistration(00000000-00000000-00000000) -> ElementNotFound
IMgmtAppConfig.deleteTrapRegistration(00000000-00000000-00000000) -> ElementNotFound
IMgmtAppConfig.deleteTrapRegistration(00000000-00000000-00000000) -> ElementNotFound
IMgmtAppConfig.deleteTrapRegistration(00000000-00000000-00000000) -> ElementNotFound
