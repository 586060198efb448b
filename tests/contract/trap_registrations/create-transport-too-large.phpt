--TEST--
A transport that no 32 bits hold does not turn into another one that has a meaning.
--FILE--
<?php
include 'scripted_platform.inc';
answer('IStorageLibrary.checkAddressConflict', 'Succeeded');
answer('IMgmtAppConfig.createTrapRegistration', 'Succeeded');
create_snmp_trap_reg(new Session(), 4294967297, '192.0.2.9', '162');
create_snmp_trap_reg(new Session(), -4294967295, '192.0.2.9', '162');
show_lines('/(transport was|createTrap)/');
--EXPECT--
TRACE[time]:New transport was:<2147483647>
IMgmtAppConfig.createTrapRegistration(2147483647 "192.0.2.9" 162) -> Succeeded
TRACE[time]:New transport was:<-2147483648>
IMgmtAppConfig.createTrapRegistration(2147483648 "192.0.2.9" 162) -> Succeeded
