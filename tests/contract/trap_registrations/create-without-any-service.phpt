--TEST--
When neither service is there, both operations fail like refused ones.
--FILE--
<?php
include 'scripted_platform.inc';
answer('IStorageLibrary', 'empty');
answer('IMgmtAppConfig', 'empty');
show(create_snmp_trap_reg(new Session(), 1, '192.0.2.9', '162'));
show_transcript();
--EXPECT--
null
TRACE[time]:entering create_snmp_trap_reg:<>
thread handle taken
session of "admin"
IMgmtAppConfig handle taken, empty
IStorageLibrary handle taken, empty
TRACE[time]:New transport was:<1>
TRACE[time]:New Trap IP was:<192.0.2.9>
TRACE[time]:New Trap Port was:<162>
report: 0x00050040 "Internal Address Conflict" http/src/network
report: Failed "Could not create trap registration" http/src/network
TRACE[time]:exiting create_snmp_trap_reg:<>
thread handle released
