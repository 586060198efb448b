--TEST--
Receivers that differ in nothing are listed each.
--FILE--
<?php
include 'scripted_platform.inc';
answer('IMgmtAppConfig.getTrapRegistrations', 'Succeeded',
       '01020304-05060708-090a0b0c', 1, '192.0.2.1', 162,
       '01020304-05060708-090a0b0c', 1, '192.0.2.1', 162);
show(get_snmp_trap_regs(new Session()));
show_transcript();
--EXPECT--
array(0: stdClass {transport: integer 1, ip: "192.0.2.1", port: integer 162, id: "01020304-05060708-090a0b0c"}, 1: stdClass {transport: integer 1, ip: "192.0.2.1", port: integer 162, id: "01020304-05060708-090a0b0c"})
TRACE[time]:entering get_snmp_trap_regs:<>
thread handle taken
session of "admin"
TRACE[time]:Before slp->getAppMgmtConfigInterface():<>
IMgmtAppConfig handle taken
IMgmtAppConfig.getTrapRegistrations() -> Succeeded 01020304-05060708-090a0b0c 1 192.0.2.1 162 01020304-05060708-090a0b0c 1 192.0.2.1 162
TRACE[time]:Number of trap registratrations::<2>
1 - 192.0.2.1 - 162 - 01020304-05060708-090a0b0c
1 - 192.0.2.1 - 162 - 01020304-05060708-090a0b0c
TRACE[time]:Exiting get_snmp_trap_regs:<>
IMgmtAppConfig handle released
thread handle released
