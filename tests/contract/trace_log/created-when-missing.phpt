--TEST--
A missing log file is created.
--FILE--
<?php
include 'scripted_platform.inc';
answer(IPV4 . '-g host', exits(0), 'library');
unlink(TRACE_LOG);
get_network_hostname();
echo count(file(TRACE_LOG)), " lines\n";
--EXPECT--
3 lines
