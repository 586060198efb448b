--TEST--
The time in a line is the local time at which it was written.
--INI--
date.timezone=Asia/Kathmandu
--FILE--
<?php
include 'scripted_platform.inc';
putenv('TZ=Asia/Kathmandu');
answer(IPV4 . '-g host', exits(0), 'library');
$before = time();
get_network_hostname();
$after = time();
preg_match('/^TRACE\[(.*?)\]/', transcript(), $line);
$time = strtotime(preg_replace('/\.\d{3}/', '', $line[1])); // not every engine knows fractions
echo $time >= $before && $time <= $after ? "now\n" : "$line[1] is not now\n";
echo strpos($line[1], date('Y-m-d H:', $time)) === 0 ? "local\n" : "$line[1] is not local\n";
--EXPECT--
now
local
