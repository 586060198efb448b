--TEST--
A number for a text and a text for a number are what the engine makes of them.
--FILE--
<?php
include 'scripted_platform.inc';
answer('IStorageLibrary.checkAddressConflict', 'Succeeded');
answer('IMgmtAppConfig.createTrapRegistration', 'Succeeded');
create_snmp_trap_reg(new Session(), '2', '192.0.2.9', 162);
create_snmp_trap_reg(new Session(), true, '192.0.2.9', '162');
create_snmp_trap_reg(new Session(), 2.0, '192.0.2.9', true);
show_lines('/createTrap/');
--EXPECT--
IMgmtAppConfig.createTrapRegistration(2 "192.0.2.9" 162) -> Succeeded
IMgmtAppConfig.createTrapRegistration(1 "192.0.2.9" 162) -> Succeeded
IMgmtAppConfig.createTrapRegistration(2 "192.0.2.9" 1) -> Succeeded
