--TEST--
An identifier in upper case is the same one.
--FILE--
<?php
include 'scripted_platform.inc';
answer('IMgmtAppConfig.deleteTrapRegistration', 'Succeeded');
show(delete_snmp_trap_reg(new Session(), 'FEDCBA98-76543210-ABCDEF00'));
show_transcript();
--EXPECT--
null
TRACE[time]:entering delete_snmp_trap_reg:<>
thread handle taken
session of "admin"
IMgmtAppConfig handle taken
IMgmtAppConfig.deleteTrapRegistration(fedcba98-76543210-abcdef00) -> Succeeded
TRACE[time]:exiting delete_snmp_trap_reg:<>
IMgmtAppConfig handle released
thread handle released
