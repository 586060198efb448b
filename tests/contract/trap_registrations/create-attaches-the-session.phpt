--TEST--
The caller's session is attached before the services are asked.
--FILE--
<?php
include 'scripted_platform.inc';
answer('IStorageLibrary.checkAddressConflict', 'Succeeded');
answer('IMgmtAppConfig.createTrapRegistration', 'Succeeded');
$session = new Session();
$session->user = 'operator';
show(create_snmp_trap_reg($session, 1, '192.0.2.9', '162'));
show_transcript();
--EXPECT--
null
TRACE[time]:entering create_snmp_trap_reg:<>
thread handle taken
session of "operator"
IMgmtAppConfig handle taken
IStorageLibrary handle taken
TRACE[time]:New transport was:<1>
TRACE[time]:New Trap IP was:<192.0.2.9>
TRACE[time]:New Trap Port was:<162>
IStorageLibrary.checkAddressConflict("192.0.2.9") -> Succeeded
IMgmtAppConfig.createTrapRegistration(1 "192.0.2.9" 162) -> Succeeded
TRACE[time]:exiting create_snmp_trap_reg:<>
IStorageLibrary handle released
IMgmtAppConfig handle released
thread handle released
