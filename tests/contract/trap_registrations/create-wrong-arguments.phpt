--TEST--
A wrong argument is refused before anything else is done: the entry trace only, and null.
--FILE--
<?php
include 'scripted_platform.inc';
$session = new Session();
show(create_snmp_trap_reg());
show(create_snmp_trap_reg($session, 1, '192.0.2.9'));
show(create_snmp_trap_reg($session, 1, '192.0.2.9', '162', 1));
show(create_snmp_trap_reg('admin', 1, '192.0.2.9', '162'));
show(create_snmp_trap_reg($session, array(1), '192.0.2.9', '162'));
show(create_snmp_trap_reg($session, 1, array('192.0.2.9'), '162'));
show(create_snmp_trap_reg($session, 1, '192.0.2.9', array('162')));
show_refusals();
--EXPECT--
null
null
null
null
null
null
null
TRACE[time]:entering create_snmp_trap_reg:<>
Warning: create_snmp_trap_reg() ...
TRACE[time]:entering create_snmp_trap_reg:<>
Warning: create_snmp_trap_reg() ...
TRACE[time]:entering create_snmp_trap_reg:<>
Warning: create_snmp_trap_reg() ...
TRACE[time]:entering create_snmp_trap_reg:<>
Warning: create_snmp_trap_reg() ...
TRACE[time]:entering create_snmp_trap_reg:<>
Warning: create_snmp_trap_reg() ...
TRACE[time]:entering create_snmp_trap_reg:<>
Warning: create_snmp_trap_reg() ...
TRACE[time]:entering create_snmp_trap_reg:<>
Warning: create_snmp_trap_reg() ...
