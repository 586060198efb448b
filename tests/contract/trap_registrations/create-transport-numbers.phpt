--TEST--
The transport is handed over as it is: only the services give its numbers a meaning.
--FILE--
<?php
include 'scripted_platform.inc';
answer('IStorageLibrary.checkAddressConflict', 'Succeeded');
answer('IMgmtAppConfig.createTrapRegistration', 'Succeeded');
foreach (array(0, 1, 2, 3, 99, -1, 2147483647, -2147483647 - 1) as $transport) {
  create_snmp_trap_reg(new Session(), $transport, '192.0.2.9', '162');
  show_lines('/(transport was|createTrap)/');
}
--EXPECT--
TRACE[time]:New transport was:<0>
IMgmtAppConfig.createTrapRegistration(0 "192.0.2.9" 162) -> Succeeded
TRACE[time]:New transport was:<1>
IMgmtAppConfig.createTrapRegistration(1 "192.0.2.9" 162) -> Succeeded
TRACE[time]:New transport was:<2>
IMgmtAppConfig.createTrapRegistration(2 "192.0.2.9" 162) -> Succeeded
TRACE[time]:New transport was:<3>
IMgmtAppConfig.createTrapRegistration(3 "192.0.2.9" 162) -> Succeeded
TRACE[time]:New transport was:<99>
IMgmtAppConfig.createTrapRegistration(99 "192.0.2.9" 162) -> Succeeded
TRACE[time]:New transport was:<-1>
IMgmtAppConfig.createTrapRegistration(4294967295 "192.0.2.9" 162) -> Succeeded
TRACE[time]:New transport was:<2147483647>
IMgmtAppConfig.createTrapRegistration(2147483647 "192.0.2.9" 162) -> Succeeded
TRACE[time]:New transport was:<-2147483648>
IMgmtAppConfig.createTrapRegistration(2147483648 "192.0.2.9" 162) -> Succeeded
