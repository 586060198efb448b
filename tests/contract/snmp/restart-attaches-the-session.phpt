--TEST--
The caller's session is attached before the script runs; no interface is taken.
--FILE--
<?php
include 'scripted_platform.inc';
answer(TRAP_TEST, exits(0));
$session = new Session();
$session->user = 'operator';
show(restart_snmp($session));
show_transcript();
--EXPECT--
null
TRACE[time]:entering restart_snmp:<>
thread handle taken
session of "operator"
system: /usr/bin/cmdwrap -NO_END_OF_FILE sh /home/embedded/library/testTrapRegistration.sh
TRACE[time]:exiting restart_snmp:<>
thread handle released
