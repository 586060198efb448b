--TEST--
The caller's session is attached before the services are asked.
--FILE--
<?php
include 'scripted_platform.inc';
answer('IMgmtAppConfig.deleteTrapRegistration', 'Succeeded');
$session = new Session();
$session->user = 'operator';
show(delete_snmp_trap_reg($session, '01020304-05060708-090a0b0c'));
show_transcript();
--EXPECT--
null
TRACE[time]:entering delete_snmp_trap_reg:<>
thread handle taken
session of "operator"
IMgmtAppConfig handle taken
IMgmtAppConfig.deleteTrapRegistration(01020304-05060708-090a0b0c) -> Succeeded
TRACE[time]:exiting delete_snmp_trap_reg:<>
IMgmtAppConfig handle released
thread handle released
