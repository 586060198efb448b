--TEST--
Whatever code but a success the check answers, the conflict has a code of its own.
--FILE--
<?php
include 'scripted_platform.inc';
answer('IStorageLibrary.checkAddressConflict', 'Succeeded');
answer('IMgmtAppConfig.createTrapRegistration', 'Succeeded');
$codes = array('Failed', 'ElementNotFound', '0', '0x50040', '0x7FFFFFFF', '0x80000000', '0x80000001', '0xFFFFFFFF');
foreach ($codes as $code) {
  answer('IStorageLibrary.checkAddressConflict', $code);
  create_snmp_trap_reg(new Session(), 1, '192.0.2.9', '162');
  echo $code, "\n";
  show_lines('/^report/');
}
--EXPECT--
Failed
report: 0x00050040 "Internal Address Conflict" http/src/network
ElementNotFound
report: 0x00050040 "Internal Address Conflict" http/src/network
0
report: 0x00050040 "Internal Address Conflict" http/src/network
0x50040
report: 0x00050040 "Internal Address Conflict" http/src/network
0x7FFFFFFF
report: 0x00050040 "Internal Address Conflict" http/src/network
0x80000000
0x80000001
0xFFFFFFFF
