--TEST--
An empty address and an empty port are handed over: the services decide.
--FILE--
<?php
include 'scripted_platform.inc';
answer('IStorageLibrary.checkAddressConflict', 'Succeeded');
answer('IMgmtAppConfig.createTrapRegistration', 'Succeeded');
show(create_snmp_trap_reg(new Session(), 0, '', ''));
show_transcript();
--EXPECT--
null
TRACE[time]:entering create_snmp_trap_reg:<>
thread handle taken
session of "admin"
IMgmtAppConfig handle taken
IStorageLibrary handle taken
TRACE[time]:New transport was:<0>
TRACE[time]:New Trap IP was:<>
TRACE[time]:New Trap Port was:<0>
IStorageLibrary.checkAddressConflict("") -> Succeeded
IMgmtAppConfig.createTrapRegistration(0 "" 0) -> Succeeded
TRACE[time]:exiting create_snmp_trap_reg:<>
IStorageLibrary handle released
IMgmtAppConfig handle released
thread handle released
