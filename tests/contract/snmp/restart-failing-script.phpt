--TEST--
A script that exits with 1 is a failure: the error number, often 0, goes to standard error, and a report is made.
--FILE--
<?php
include 'scripted_platform.inc';
answer(TRAP_TEST, exits(1), 0);
show(restart_snmp(new Session()));
show_transcript();
--EXPECT--
null
TRACE[time]:entering restart_snmp:<>
thread handle taken
session of "admin"
system: /usr/bin/cmdwrap -NO_END_OF_FILE sh /home/embedded/library/testTrapRegistration.sh
System call to testTrapRegistration.sh returned 0
report: Failed "Failed to restart/test trap registration" http/src/network
TRACE[time]:exiting restart_snmp:<>
thread handle released
