--TEST--
A wrong argument is refused before anything else is done: the entry trace only, and null.
--FILE--
<?php
include 'scripted_platform.inc';
show(get_snmp_trap_regs());
show(get_snmp_trap_regs(new Session(), 1));
show(get_snmp_trap_regs('admin'));
show(get_snmp_trap_regs(null));
show_refusals();
--EXPECT--
null
null
null
null
TRACE[time]:entering get_snmp_trap_regs:<>
Warning: get_snmp_trap_regs() ...
TRACE[time]:entering get_snmp_trap_regs:<>
Warning: get_snmp_trap_regs() ...
TRACE[time]:entering get_snmp_trap_regs:<>
Warning: get_snmp_trap_regs() ...
TRACE[time]:entering get_snmp_trap_regs:<>
Warning: get_snmp_trap_regs() ...
