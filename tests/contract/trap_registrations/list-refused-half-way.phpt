--TEST--
What the list holds counts, also when the services then say that they failed; nothing is reported.
--FILE--
<?php
include 'scripted_platform.inc';
answer('IMgmtAppConfig.getTrapRegistrations', 'Failed',
       '01020304-05060708-090a0b0c', 1, '192.0.2.1', 162,
       '00000000-00000000-00000002', 2, '192.0.2.2', 65535);
show(get_snmp_trap_regs(new Session()));
show_transcript();
--EXPECT--
array(0: stdClass {transport: integer 1, ip: "192.0.2.1", port: integer 162, id: "01020304-05060708-090a0b0c"}, 1: stdClass {transport: integer 2, ip: "192.0.2.2", port: integer 65535, id: "00000000-00000000-00000002"})
TRACE[time]:entering get_snmp_trap_regs:<>
thread handle taken
session of "admin"
TRACE[time]:Before slp->getAppMgmtConfigInterface():<>
IMgmtAppConfig handle taken
IMgmtAppConfig.getTrapRegistrations() -> Failed 01020304-05060708-090a0b0c 1 192.0.2.1 162 00000000-00000000-00000002 2 192.0.2.2 65535
TRACE[time]:Number of trap registratrations::<2>
1 - 192.0.2.1 - 162 - 01020304-05060708-090a0b0c
2 - 192.0.2.2 - 65535 - 00000000-00000000-00000002
TRACE[time]:Exiting get_snmp_trap_regs:<>
IMgmtAppConfig handle released
thread handle released
