--TEST--
The three commands share one output: where the runner does not write it for a command that cannot be started, the one before stays.
--FILE--
<?php
include 'scripted_platform.inc';
answer(IPV4 . '-d status', exits(0), '??');
answer(IPV4 . '-g static', exits(127), '', 'output left alone');
answer(IPV4 . '-g host', exits(127), '', 'output left alone');
show(get_network_configuration_ipv4(new Session()));
show_lines('/^report|Output/');
--EXPECT--
stdClass {hostname: "??", dhcpEnabled: false, ip: "", gateway: "", netmask: ""}
TRACE[time]:Output1 = :<??>
report: 0x00050005 "Could not get IPv4 network information" http/src/network
TRACE[time]:Output2 = :<??>
report: 0x00050006 "Could not get hostname information" http/src/network
TRACE[time]:Output3 = :<??>
