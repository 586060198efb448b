--TEST--
A wrong argument is refused before anything else is done: the entry trace only, and null.
--FILE--
<?php
include 'scripted_platform.inc';
show(get_snmp_settings());
show(get_snmp_settings(new Session(), 1));
show(get_snmp_settings('admin'));
show(get_snmp_settings(null));
show(set_snmp_settings());
show(set_snmp_settings(new Session()));
show(set_snmp_settings(new Session(), new SnmpSettings(), 1));
show(set_snmp_settings('admin', new SnmpSettings()));
show(set_snmp_settings(new Session(), 'settings'));
show(set_snmp_settings(new Session(), array('version1' => true)));
show_refusals();
--EXPECT--
null
null
null
null
null
null
null
null
null
null
TRACE[time]:Entering get_snmp_settings:<>
Warning: get_snmp_settings() ...
TRACE[time]:Entering get_snmp_settings:<>
Warning: get_snmp_settings() ...
TRACE[time]:Entering get_snmp_settings:<>
Warning: get_snmp_settings() ...
TRACE[time]:Entering get_snmp_settings:<>
Warning: get_snmp_settings() ...
TRACE[time]:Entering set_snmp_settings:<>
Warning: set_snmp_settings() ...
TRACE[time]:Entering set_snmp_settings:<>
Warning: set_snmp_settings() ...
TRACE[time]:Entering set_snmp_settings:<>
Warning: set_snmp_settings() ...
TRACE[time]:Entering set_snmp_settings:<>
Warning: set_snmp_settings() ...
TRACE[time]:Entering set_snmp_settings:<>
Warning: set_snmp_settings() ...
TRACE[time]:Entering set_snmp_settings:<>
Warning: set_snmp_settings() ...
