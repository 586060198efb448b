--TEST--
A deletion that fails is not reported, whatever its code.
--FILE--
<?php
include 'scripted_platform.inc';
foreach (array('Failed', 'MemoryAllocationFailure', '0', '0x12345', '0x7FFFFFFF') as $code) {
  answer('IMgmtAppConfig.deleteTrapRegistration', $code);
  show(delete_snmp_trap_reg(new Session(), '01020304-05060708-090a0b0c'));
}
show_lines('/(report|Warning|^TRACE|deleteTrap)/');
--EXPECT--
null
null
null
null
null
TRACE[time]:entering delete_snmp_trap_reg:<>
IMgmtAppConfig.deleteTrapRegistration(01020304-05060708-090a0b0c) -> Failed
TRACE[time]:exiting delete_snmp_trap_reg:<>
TRACE[time]:entering delete_snmp_trap_reg:<>
IMgmtAppConfig.deleteTrapRegistration(01020304-05060708-090a0b0c) -> MemoryAllocationFailure
TRACE[time]:exiting delete_snmp_trap_reg:<>
TRACE[time]:entering delete_snmp_trap_reg:<>
IMgmtAppConfig.deleteTrapRegistration(01020304-05060708-090a0b0c) -> 0x00000000
TRACE[time]:exiting delete_snmp_trap_reg:<>
TRACE[time]:entering delete_snmp_trap_reg:<>
IMgmtAppConfig.deleteTrapRegistration(01020304-05060708-090a0b0c) -> 0x00012345
TRACE[time]:exiting delete_snmp_trap_reg:<>
TRACE[time]:entering delete_snmp_trap_reg:<>
IMgmtAppConfig.deleteTrapRegistration(01020304-05060708-090a0b0c) -> 0x7FFFFFFF
TRACE[time]:exiting delete_snmp_trap_reg:<>
