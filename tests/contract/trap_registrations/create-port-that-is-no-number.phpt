--TEST--
A port text that is no number is port 0.
--FILE--
<?php
include 'scripted_platform.inc';
answer('IStorageLibrary.checkAddressConflict', 'Succeeded');
answer('IMgmtAppConfig.createTrapRegistration', 'Succeeded');
show(create_snmp_trap_reg(new Session(), 1, '192.0.2.9', 'abc'));
show_transcript();
--EXPECT--
null
TRACE[time]:entering create_snmp_trap_reg:<>
thread handle taken
session of "admin"
IMgmtAppConfig handle taken
IStorageLibrary handle taken
TRACE[time]:New transport was:<1>
TRACE[time]:New Trap IP was:<192.0.2.9>
TRACE[time]:New Trap Port was:<0>
IStorageLibrary.checkAddressConflict("192.0.2.9") -> Succeeded
IMgmtAppConfig.createTrapRegistration(1 "192.0.2.9" 0) -> Succeeded
TRACE[time]:exiting create_snmp_trap_reg:<>
IStorageLibrary handle released
IMgmtAppConfig handle released
thread handle released
