--TEST--
A script that exits with 0 leaves the two trace lines: no other output, no report.
--FILE--
<?php
include 'scripted_platform.inc';
answer(TRAP_TEST, exits(0), 0);
show(restart_snmp(new Session()));
show_transcript();
--EXPECT--
null
TRACE[time]:entering restart_snmp:<>
thread handle taken
session of "admin"
system: /usr/bin/cmdwrap -NO_END_OF_FILE sh /home/embedded/library/testTrapRegistration.sh
TRACE[time]:exiting restart_snmp:<>
thread handle released
