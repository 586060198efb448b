--TEST--
An address is handed over as it is, whatever characters it has.
--FILE--
<?php
include 'scripted_platform.inc';
answer('IStorageLibrary.checkAddressConflict', 'Succeeded');
answer('IMgmtAppConfig.createTrapRegistration', 'Succeeded');
show(create_snmp_trap_reg(new Session(), 1, '%s%n <"> \'a; $(reboot)', '162'));
show_transcript();
--EXPECT--
null
TRACE[time]:entering create_snmp_trap_reg:<>
thread handle taken
session of "admin"
IMgmtAppConfig handle taken
IStorageLibrary handle taken
TRACE[time]:New transport was:<1>
TRACE[time]:New Trap IP was:<%s%n <"> 'a; $(reboot)>
TRACE[time]:New Trap Port was:<162>
IStorageLibrary.checkAddressConflict("%s%n <"> 'a; $(reboot)") -> Succeeded
IMgmtAppConfig.createTrapRegistration(1 "%s%n <"> 'a; $(reboot)" 162) -> Succeeded
TRACE[time]:exiting create_snmp_trap_reg:<>
IStorageLibrary handle released
IMgmtAppConfig handle released
thread handle released
