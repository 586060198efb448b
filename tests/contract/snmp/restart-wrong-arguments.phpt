--TEST--
A wrong argument is refused before anything else is done: the entry trace only, and null.
--FILE--
<?php
include 'scripted_platform.inc';
show(restart_snmp());
show(restart_snmp(new Session(), 1));
show(restart_snmp('admin'));
show(restart_snmp(array('user' => 'admin')));
show_refusals();
--EXPECT--
null
null
null
null
TRACE[time]:entering restart_snmp:<>
Warning: restart_snmp() ...
TRACE[time]:entering restart_snmp:<>
Warning: restart_snmp() ...
TRACE[time]:entering restart_snmp:<>
Warning: restart_snmp() ...
TRACE[time]:entering restart_snmp:<>
Warning: restart_snmp() ...
