--TEST--
A thread without a handle of its own restarts all the same.
--FILE--
<?php
include 'scripted_platform.inc';
answer('thread', 'empty');
answer(TRAP_TEST, exits(1), 2);
show(restart_snmp(new Session()));
show_transcript();
--EXPECT--
null
TRACE[time]:entering restart_snmp:<>
thread handle taken, empty
session of "admin"
system: /usr/bin/cmdwrap -NO_END_OF_FILE sh /home/embedded/library/testTrapRegistration.sh
System call to testTrapRegistration.sh returned 2
report: Failed "Failed to restart/test trap registration" http/src/network
TRACE[time]:exiting restart_snmp:<>
