--TEST--
What the log file holds already stays in front.
--FILE--
<?php
include 'scripted_platform.inc';
answer(IPV4 . '-g host', exits(0), 'library');
unlink(TRACE_LOG);
append_to(TRACE_LOG, "an older line\n");
get_network_hostname();
$lines = file(TRACE_LOG);
echo count($lines), ' lines, the first is ', $lines[0];
--EXPECT--
4 lines, the first is an older line
