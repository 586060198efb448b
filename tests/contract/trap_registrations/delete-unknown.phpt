--TEST--
Deleting an identifier that no receiver has reports nothing.
--FILE--
<?php
include 'scripted_platform.inc';
answer('IMgmtAppConfig.deleteTrapRegistration', 'ElementNotFound');
show(delete_snmp_trap_reg(new Session(), '01020304-05060708-090a0b0c'));
show_transcript();
--EXPECT--
null
TRACE[time]:entering delete_snmp_trap_reg:<>
thread handle taken
session of "admin"
IMgmtAppConfig handle taken
IMgmtAppConfig.deleteTrapRegistration(01020304-05060708-090a0b0c) -> ElementNotFound
TRACE[time]:exiting delete_snmp_trap_reg:<>
IMgmtAppConfig handle released
thread handle released
