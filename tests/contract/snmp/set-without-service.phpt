--TEST--
When the configuration service is not there, its operations fail like refused ones.
--FILE--
<?php
include 'scripted_platform.inc';
answer('IMgmtAppConfig', 'empty');
show(set_snmp_settings(new Session(), new SnmpSettings()));
show_transcript();
--EXPECT--
null
TRACE[time]:Entering set_snmp_settings:<>
thread handle taken
IMgmtAppConfig handle taken, empty
TRACE[time]:Enabling SNMP:<>
TRACE[time]:Enabling Trap1:<>
TRACE[time]:Enabling Trap2:<>
report: Failed "Could not set SNMP versions" http/src/network
TRACE[time]:setting community name::<private>
TRACE[time]:setting authTrapsEnabled::<1>
report: Failed "Could not set auth traps enabled" http/src/network
report: Failed "Could not set the community" http/src/network
report: Failed "Could not restart SNMP" http/src/network
TRACE[time]:Exiting set_snmp_settings:<>
thread handle released
