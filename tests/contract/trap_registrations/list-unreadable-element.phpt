--TEST--
A receiver that cannot be read from the list is in the array with the values of a new record, not with those of the one before.
--FILE--
<?php
include 'scripted_platform.inc';
answer('IMgmtAppConfig.getTrapRegistrations', 'Succeeded',
       '01020304-05060708-090a0b0c', 1, '192.0.2.1', 162,
       '00000000-00000000-00000002', 2, '192.0.2.2', 65535,
       'fedcba98-76543210-00000003', 1, '2001:db8::3', 1162,
       '00000001-00000000-00000000', 0, '192.0.2.4', 0,
       'lost');
show(get_snmp_trap_regs(new Session()));
show_transcript();
--EXPECT--
array(0: stdClass {transport: integer 1, ip: "192.0.2.1", port: integer 162, id: "01020304-05060708-090a0b0c"}, 1: stdClass {transport: integer 2, ip: "192.0.2.2", port: integer 65535, id: "00000000-00000000-00000002"}, 2: stdClass {transport: integer 1, ip: "2001:db8::3", port: integer 1162, id: "fedcba98-76543210-00000003"}, 3: stdClass {transport: integer 0, ip: "192.0.2.4", port: integer 0, id: "00000001-00000000-00000000"}, 4: stdClass {transport: integer 0, ip: "", port: integer 0, id: "00000000-00000000-00000000"})
TRACE[time]:entering get_snmp_trap_regs:<>
thread handle taken
session of "admin"
TRACE[time]:Before slp->getAppMgmtConfigInterface():<>
IMgmtAppConfig handle taken
IMgmtAppConfig.getTrapRegistrations() -> Succeeded 01020304-05060708-090a0b0c 1 192.0.2.1 162 00000000-00000000-00000002 2 192.0.2.2 65535 fedcba98-76543210-00000003 1 2001:db8::3 1162 00000001-00000000-00000000 0 192.0.2.4 0 lost
TRACE[time]:Number of trap registratrations::<5>
1 - 192.0.2.1 - 162 - 01020304-05060708-090a0b0c
2 - 192.0.2.2 - 65535 - 00000000-00000000-00000002
1 - 2001:db8::3 - 1162 - fedcba98-76543210-00000003
0 - 192.0.2.4 - 0 - 00000001-00000000-00000000
0 -  - 0 - 00000000-00000000-00000000
TRACE[time]:Exiting get_snmp_trap_regs:<>
IMgmtAppConfig handle released
thread handle released
