--TEST--
Null for the settings changes nothing: no service is asked, and null is returned.
--FILE--
<?php
include 'scripted_platform.inc';
show(set_snmp_settings(new Session(), null));
show_refusals();
--EXPECT--
null
TRACE[time]:Entering set_snmp_settings:<>
Warning: set_snmp_settings() ...
