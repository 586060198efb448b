--TEST--
A wrong argument is refused before anything else is done: the entry trace only, and null.
--FILE--
<?php
include 'scripted_platform.inc';
show(delete_snmp_trap_reg());
show(delete_snmp_trap_reg(new Session()));
show(delete_snmp_trap_reg(new Session(), '01020304-05060708-090a0b0c', 1));
show(delete_snmp_trap_reg('admin', '01020304-05060708-090a0b0c'));
show(delete_snmp_trap_reg(new Session(), array()));
show_refusals();
--EXPECT--
null
null
null
null
null
TRACE[time]:entering delete_snmp_trap_reg:<>
Warning: delete_snmp_trap_reg() ...
TRACE[time]:entering delete_snmp_trap_reg:<>
Warning: delete_snmp_trap_reg() ...
TRACE[time]:entering delete_snmp_trap_reg:<>
Warning: delete_snmp_trap_reg() ...
TRACE[time]:entering delete_snmp_trap_reg:<>
Warning: delete_snmp_trap_reg() ...
TRACE[time]:entering delete_snmp_trap_reg:<>
Warning: delete_snmp_trap_reg() ...
