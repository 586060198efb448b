--TEST--
When the configuration service is not there, its operation fails like a refused one.
--FILE--
<?php
include 'scripted_platform.inc';
answer('IStorageLibrary.checkAddressConflict', 'Succeeded');
answer('IMgmtAppConfig', 'empty');
show(create_snmp_trap_reg(new Session(), 1, '192.0.2.9', '162'));
show_transcript();
--EXPECT--
null
TRACE[time]:entering create_snmp_trap_reg:<>
thread handle taken
session of "admin"
IMgmtAppConfig handle taken, empty
IStorageLibrary handle taken
TRACE[time]:New transport was:<1>
TRACE[time]:New Trap IP was:<192.0.2.9>
TRACE[time]:New Trap Port was:<162>
IStorageLibrary.checkAddressConflict("192.0.2.9") -> Succeeded
report: Failed "Could not create trap registration" http/src/network
TRACE[time]:exiting create_snmp_trap_reg:<>
IStorageLibrary handle released
thread handle released
