--TEST--
An IPv6 address is handed over as it is.
--FILE--
<?php
include 'scripted_platform.inc';
answer('IStorageLibrary.checkAddressConflict', 'Succeeded');
answer('IMgmtAppConfig.createTrapRegistration', 'Succeeded');
show(create_snmp_trap_reg(new Session(), 2, '2001:DB8::9', '1162'));
show_transcript();
--EXPECT--
null
TRACE[time]:entering create_snmp_trap_reg:<>
thread handle taken
session of "admin"
IMgmtAppConfig handle taken
IStorageLibrary handle taken
TRACE[time]:New transport was:<2>
TRACE[time]:New Trap IP was:<2001:DB8::9>
TRACE[time]:New Trap Port was:<1162>
IStorageLibrary.checkAddressConflict("2001:DB8::9") -> Succeeded
IMgmtAppConfig.createTrapRegistration(2 "2001:DB8::9" 1162) -> Succeeded
TRACE[time]:exiting create_snmp_trap_reg:<>
IStorageLibrary handle released
IMgmtAppConfig handle released
thread handle released
