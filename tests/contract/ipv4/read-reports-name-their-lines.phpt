--TEST--
The two reports with the same message name different lines, the first one's before the second one's.
--FILE--
<?php
include 'scripted_platform.inc';
answer(IPV4 . '-d status', exits(1), '??');
answer(IPV4 . '-g static', exits(1), '');
answer(IPV4 . '-g host', exits(0), '');
get_network_configuration_ipv4(new Session());
preg_match_all('|"Could not get IPv4 network information" http/src/network:(\d+)$|m', transcript(), $lines);
echo count($lines[1]), " reports\n";
echo $lines[1][0] > 0 && $lines[1][0] < $lines[1][1] ? "in order\n" : "not in order: {$lines[1][0]}, {$lines[1][1]}\n";
--EXPECT--
2 reports
in order
