--TEST--
A script that a signal ended is a failure like any other.
--FILE--
<?php
include 'scripted_platform.inc';
answer(TRAP_TEST, killed_by(9), 4);
show(restart_snmp(new Session()));
show_transcript();
--EXPECT--
null
TRACE[time]:entering restart_snmp:<>
thread handle taken
session of "admin"
system: /usr/bin/cmdwrap -NO_END_OF_FILE sh /home/embedded/library/testTrapRegistration.sh
System call to testTrapRegistration.sh returned 4
report: Failed "Failed to restart/test trap registration" http/src/network
TRACE[time]:exiting restart_snmp:<>
thread handle released
