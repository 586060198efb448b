--TEST--
The identifier that the page passes is not changed.
--FILE--
<?php
include 'scripted_platform.inc';
answer('IMgmtAppConfig.deleteTrapRegistration', 'Succeeded');
$id = '01020304-05060708-090a0b0c';
delete_snmp_trap_reg(new Session(), $id);
show($id);
--EXPECT--
"01020304-05060708-090a0b0c"
