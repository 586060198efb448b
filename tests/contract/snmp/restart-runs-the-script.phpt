--TEST--
The script runs to its end without arguments, its output is not captured, and its failure is a warning of the page.
--PLATFORM--
development
--FILE--
<?php
include 'scripted_platform.inc';
function restart_with($body) {
  write_script('/home/embedded/library/testTrapRegistration.sh', $body);
  show(restart_snmp(new Session()));
  echo preg_replace('/returned \d+$/m', 'returned NUMBER', masked_transcript());
  forget_transcript();
}
restart_with('echo "$0 with $# arguments"');
restart_with('exit 1');
--EXPECT--
/home/embedded/library/testTrapRegistration.sh with 0 arguments
null
TRACE[time]:entering restart_snmp:<>
TRACE[time]:exiting restart_snmp:<>
null
TRACE[time]:entering restart_snmp:<>
System call to testTrapRegistration.sh returned NUMBER
Warning: restart_snmp(): Failed to restart/test trap registration (code 0x00000001, http/src/network)
TRACE[time]:exiting restart_snmp:<>
