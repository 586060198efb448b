--TEST--
The report about a refused thread carries the line where the function starts its worker.
--FILE--
<?php
include 'scripted_platform.inc';
answer('pthread_create', 11);
set_network_configuration_ipv4(new Session(), new Ipv4Settings());
preg_match('|^report: .* http/src/network:(\d+)$|m', transcript(), $report);
$source = file(platform_file('src/ipv4.cc'));
show(preg_match('/\bset_network_ipv4\b/', $source[$report[1] - 1]));
--EXPECT--
integer 1
