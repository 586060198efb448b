--TEST--
No call keeps the log file open: one that is moved away is followed by a new one.
--FILE--
<?php
include 'scripted_platform.inc';
answer(IPV4 . '-g host', exits(0), 'library');
unlink(TRACE_LOG);
get_network_hostname();
rename(TRACE_LOG, TRACE_LOG . '.old');
get_network_hostname();
echo count(file(TRACE_LOG . '.old')), ' and ', count(file(TRACE_LOG)), " lines\n";
--EXPECT--
3 and 3 lines
