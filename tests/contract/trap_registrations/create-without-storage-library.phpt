--TEST--
When the storage library is not there, its check fails like a conflict, and the creation is tried all the same.
--FILE--
<?php
include 'scripted_platform.inc';
answer('IStorageLibrary', 'empty');
answer('IMgmtAppConfig.createTrapRegistration', 'Succeeded');
show(create_snmp_trap_reg(new Session(), 1, '192.0.2.9', '162'));
show_transcript();
--EXPECT--
null
TRACE[time]:entering create_snmp_trap_reg:<>
thread handle taken
session of "admin"
IMgmtAppConfig handle taken
IStorageLibrary handle taken, empty
TRACE[time]:New transport was:<1>
TRACE[time]:New Trap IP was:<192.0.2.9>
TRACE[time]:New Trap Port was:<162>
report: 0x00050040 "Internal Address Conflict" http/src/network
IMgmtAppConfig.createTrapRegistration(1 "192.0.2.9" 162) -> Succeeded
TRACE[time]:exiting create_snmp_trap_reg:<>
IMgmtAppConfig handle released
thread handle released
