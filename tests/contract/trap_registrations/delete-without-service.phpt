--TEST--
When the configuration service is not there, nothing is deleted and nothing reported.
--FILE--
<?php
include 'scripted_platform.inc';
answer('IMgmtAppConfig', 'empty');
show(delete_snmp_trap_reg(new Session(), '01020304-05060708-090a0b0c'));
show_transcript();
--EXPECT--
null
TRACE[time]:entering delete_snmp_trap_reg:<>
thread handle taken
session of "admin"
IMgmtAppConfig handle taken, empty
TRACE[time]:exiting delete_snmp_trap_reg:<>
thread handle released
