--TEST--
An address is shown as it is, whatever characters it has, also those that a format gives a meaning.
--FILE--
<?php
include 'scripted_platform.inc';
answer('IMgmtAppConfig.getTrapRegistrations', 'Succeeded',
       '00000000-00000000-00000000', 1, '%s%n%d - <\'&>\\', 162);
show(get_snmp_trap_regs(new Session()));
show_transcript();
--EXPECT--
array(0: stdClass {transport: integer 1, ip: "%s%n%d - <'&>\\", port: integer 162, id: "00000000-00000000-00000000"})
TRACE[time]:entering get_snmp_trap_regs:<>
thread handle taken
session of "admin"
TRACE[time]:Before slp->getAppMgmtConfigInterface():<>
IMgmtAppConfig handle taken
IMgmtAppConfig.getTrapRegistrations() -> Succeeded 00000000-00000000-00000000 1 %s%n%d - <'&>\ 162
TRACE[time]:Number of trap registratrations::<1>
1 - %s%n%d - <'&>\ - 162 - 00000000-00000000-00000000
TRACE[time]:Exiting get_snmp_trap_regs:<>
IMgmtAppConfig handle released
thread handle released
