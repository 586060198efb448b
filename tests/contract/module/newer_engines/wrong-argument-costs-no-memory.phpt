--TEST--
A call with a wrong argument leaves no memory behind.
--FILE--
<?php
include 'scripted_platform.inc';
function refused_calls() {
  for ($i = 0; $i < 1000; ++$i) @set_network_hostname(new Session(), array());
}
refused_calls();
$before = memory_get_usage();
refused_calls();
echo memory_get_usage() - $before, " bytes more\n";
--EXPECT--
0 bytes more
