--TEST--
A receiver without an address is listed with the empty text.
--FILE--
<?php
include 'scripted_platform.inc';
answer('IMgmtAppConfig.getTrapRegistrations', 'Succeeded',
       '00000000-00000000-00000001', 1, '', 162);
show(get_snmp_trap_regs(new Session()));
show_transcript();
--EXPECT--
array(0: stdClass {transport: integer 1, ip: "", port: integer 162, id: "00000000-00000000-00000001"})
TRACE[time]:entering get_snmp_trap_regs:<>
thread handle taken
session of "admin"
TRACE[time]:Before slp->getAppMgmtConfigInterface():<>
IMgmtAppConfig handle taken
IMgmtAppConfig.getTrapRegistrations() -> Succeeded 00000000-00000000-00000001 1  162
TRACE[time]:Number of trap registratrations::<1>
1 -  - 162 - 00000000-00000000-00000001
TRACE[time]:Exiting get_snmp_trap_regs:<>
IMgmtAppConfig handle released
thread handle released
