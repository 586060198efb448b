--TEST--
A conflict and a refused creation are both reported.
--FILE--
<?php
include 'scripted_platform.inc';
answer('IStorageLibrary.checkAddressConflict', 'Failed');
answer('IMgmtAppConfig.createTrapRegistration', 'Failed');
show(create_snmp_trap_reg(new Session(), 1, '192.0.2.9', '162'));
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
TRACE[time]:New Trap Port was:<162>
IStorageLibrary.checkAddressConflict("192.0.2.9") -> Failed
IStorageLibrary handle released
report: 0x00050040 "Internal Address Conflict" http/src/network
IMgmtAppConfig.createTrapRegistration(1 "192.0.2.9" 162) -> Failed
report: Failed "Could not create trap registration" http/src/network
TRACE[time]:exiting create_snmp_trap_reg:<>
IMgmtAppConfig handle released
thread handle released
