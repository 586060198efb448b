--TEST--
A port text is read as the C library reads a number: blanks and a sign before the digits, nothing behind them; no range is checked.
--FILE--
<?php
include 'scripted_platform.inc';
answer('IStorageLibrary.checkAddressConflict', 'Succeeded');
answer('IMgmtAppConfig.createTrapRegistration', 'Succeeded');
$ports = array('162', '0162', ' 162', '+162', '162abc', '16 2', '0x10', '1e3', '1.9', '65536',
               '-5', '-', '2147483647', '-2147483648');
foreach ($ports as $port) {
  create_snmp_trap_reg(new Session(), 1, '192.0.2.9', $port);
  show_lines('/(Port was|createTrap)/');
}
--EXPECT--
TRACE[time]:New Trap Port was:<162>
IMgmtAppConfig.createTrapRegistration(1 "192.0.2.9" 162) -> Succeeded
TRACE[time]:New Trap Port was:<162>
IMgmtAppConfig.createTrapRegistration(1 "192.0.2.9" 162) -> Succeeded
TRACE[time]:New Trap Port was:<162>
IMgmtAppConfig.createTrapRegistration(1 "192.0.2.9" 162) -> Succeeded
TRACE[time]:New Trap Port was:<162>
IMgmtAppConfig.createTrapRegistration(1 "192.0.2.9" 162) -> Succeeded
TRACE[time]:New Trap Port was:<162>
IMgmtAppConfig.createTrapRegistration(1 "192.0.2.9" 162) -> Succeeded
TRACE[time]:New Trap Port was:<16>
IMgmtAppConfig.createTrapRegistration(1 "192.0.2.9" 16) -> Succeeded
TRACE[time]:New Trap Port was:<0>
IMgmtAppConfig.createTrapRegistration(1 "192.0.2.9" 0) -> Succeeded
TRACE[time]:New Trap Port was:<1>
IMgmtAppConfig.createTrapRegistration(1 "192.0.2.9" 1) -> Succeeded
TRACE[time]:New Trap Port was:<1>
IMgmtAppConfig.createTrapRegistration(1 "192.0.2.9" 1) -> Succeeded
TRACE[time]:New Trap Port was:<65536>
IMgmtAppConfig.createTrapRegistration(1 "192.0.2.9" 65536) -> Succeeded
TRACE[time]:New Trap Port was:<-5>
IMgmtAppConfig.createTrapRegistration(1 "192.0.2.9" 4294967291) -> Succeeded
TRACE[time]:New Trap Port was:<0>
IMgmtAppConfig.createTrapRegistration(1 "192.0.2.9" 0) -> Succeeded
TRACE[time]:New Trap Port was:<2147483647>
IMgmtAppConfig.createTrapRegistration(1 "192.0.2.9" 2147483647) -> Succeeded
TRACE[time]:New Trap Port was:<-2147483648>
IMgmtAppConfig.createTrapRegistration(1 "192.0.2.9" 2147483648) -> Succeeded
