--TEST--
A list that the services refuse is empty, and nothing is reported.
--FILE--
<?php
include 'scripted_platform.inc';
answer('IMgmtAppConfig.getTrapRegistrations', 'Failed');
show(get_snmp_trap_regs(new Session()));
show_transcript();
--EXPECT--
array()
TRACE[time]:entering get_snmp_trap_regs:<>
thread handle taken
session of "admin"
TRACE[time]:Before slp->getAppMgmtConfigInterface():<>
IMgmtAppConfig handle taken
IMgmtAppConfig.getTrapRegistrations() -> Failed
TRACE[time]:Number of trap registratrations::<0>
TRACE[time]:Exiting get_snmp_trap_regs:<>
IMgmtAppConfig handle released
thread handle released
