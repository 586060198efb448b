--TEST--
The report about a refused thread carries the line where the function starts its worker.
--FILE--
<?php
include 'scripted_platform.inc';
answer('pthread_create', 11);
set_network_configuration_ipv6(new Session(), new Ipv6Settings());
preg_match('|^report: .* http/src/network:(\d+)$|m', transcript(), $report);
$source = file(platform_file('src/ipv6.cc'));
show(preg_match('/\bset_network_ipv6\b/', $source[$report[1] - 1]));
--EXPECT--
integer 1
