--TEST--
Every exit status but zero is the same failure, and the page gets no value in any case.
--FILE--
<?php
include 'scripted_platform.inc';
foreach (array(0, 1, 2, 126, 127, 128, 255) as $status) {
  answer(TRAP_TEST, exits($status), 0);
  show(restart_snmp(new Session()));
  echo $status, strpos(transcript(), 'report:') ? " failure\n" : " success\n";
  forget_transcript();
}
--EXPECT--
null
0 success
null
1 failure
null
2 failure
null
126 failure
null
127 failure
null
128 failure
null
255 failure
