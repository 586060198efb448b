--TEST--
The receiver with the identifier is deleted.
--FILE--
<?php
include 'scripted_platform.inc';
answer('IMgmtAppConfig.deleteTrapRegistration', 'Succeeded');
show(delete_snmp_trap_reg(new Session(), '01020304-05060708-090a0b0c'));
show_transcript();
--EXPECT--
null
TRACE[time]:entering delete_snmp_trap_reg:<>
thread handle taken
session of "admin"
IMgmtAppConfig handle taken
IMgmtAppConfig.deleteTrapRegistration(01020304-05060708-090a0b0c) -> Succeeded
TRACE[time]:exiting delete_snmp_trap_reg:<>
IMgmtAppConfig handle released
thread handle released
