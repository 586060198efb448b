--TEST--
The largest numbers that every integer holds are shown as they are.
--FILE--
<?php
include 'scripted_platform.inc';
answer('IMgmtAppConfig.getTrapRegistrations', 'Succeeded',
       '00000000-00000000-00000000', 2147483647, '192.0.2.1', 2147483647);
show(get_snmp_trap_regs(new Session()));
show_transcript();
--EXPECT--
array(0: stdClass {transport: integer 2147483647, ip: "192.0.2.1", port: integer 2147483647, id: "00000000-00000000-00000000"})
TRACE[time]:entering get_snmp_trap_regs:<>
thread handle taken
session of "admin"
TRACE[time]:Before slp->getAppMgmtConfigInterface():<>
IMgmtAppConfig handle taken
IMgmtAppConfig.getTrapRegistrations() -> Succeeded 00000000-00000000-00000000 2147483647 192.0.2.1 2147483647
TRACE[time]:Number of trap registratrations::<1>
2147483647 - 192.0.2.1 - 2147483647 - 00000000-00000000-00000000
TRACE[time]:Exiting get_snmp_trap_regs:<>
IMgmtAppConfig handle released
thread handle released
