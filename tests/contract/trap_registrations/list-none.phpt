--TEST--
Without receivers, the list is an empty array, the count is traced, and nothing goes to standard error.
--FILE--
<?php
include 'scripted_platform.inc';
answer('IMgmtAppConfig.getTrapRegistrations', 'Succeeded');
show(get_snmp_trap_regs(new Session()));
show_transcript();
--EXPECT--
array()
TRACE[time]:entering get_snmp_trap_regs:<>
thread handle taken
session of "admin"
TRACE[time]:Before slp->getAppMgmtConfigInterface():<>
IMgmtAppConfig handle taken
IMgmtAppConfig.getTrapRegistrations() -> Succeeded
TRACE[time]:Number of trap registratrations::<0>
TRACE[time]:Exiting get_snmp_trap_regs:<>
IMgmtAppConfig handle released
thread handle released
