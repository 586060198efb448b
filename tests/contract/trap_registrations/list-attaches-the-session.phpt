--TEST--
The caller's session is attached before the services are asked.
--FILE--
<?php
include 'scripted_platform.inc';
answer('IMgmtAppConfig.getTrapRegistrations', 'Succeeded',
       '01020304-05060708-090a0b0c', 1, '192.0.2.1', 162);
$session = new Session();
$session->user = 'operator';
show(get_snmp_trap_regs($session));
show_transcript();
--EXPECT--
array(0: stdClass {transport: integer 1, ip: "192.0.2.1", port: integer 162, id: "01020304-05060708-090a0b0c"})
TRACE[time]:entering get_snmp_trap_regs:<>
thread handle taken
session of "operator"
TRACE[time]:Before slp->getAppMgmtConfigInterface():<>
IMgmtAppConfig handle taken
IMgmtAppConfig.getTrapRegistrations() -> Succeeded 01020304-05060708-090a0b0c 1 192.0.2.1 162
TRACE[time]:Number of trap registratrations::<1>
1 - 192.0.2.1 - 162 - 01020304-05060708-090a0b0c
TRACE[time]:Exiting get_snmp_trap_regs:<>
IMgmtAppConfig handle released
thread handle released
