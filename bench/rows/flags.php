<?php
// Calls that run no command, beside a C++ program with the same system calls, and beside the same in plain PHP.
require dirname(__DIR__) . '/helpers.php';

$times = amount(10000, 1000);
$rounds = amount(15, 3);
foreach (array('is_ipv6_enabled' => array('IPv6', '/home/embedded/library/CoreService/dat/ipv6Enabled'),
    'is_ipv6_dhcp_enabled' => array('IPv6 DHCP', '/etc/ipv6dhcp')) as $function => list($what, $flag)) {
    $samples = in_turn(array(calls($function, $times), program('flag_file', $function, $what, $times, $flag),
        calls("plain_$function", $times)), $rounds);
    ratio_row("$function()", 'C++, the same system calls', 'ns', at_most(1.25), $samples[0], $samples[1]);
    ratio_row("$function()", 'plain PHP', 'ns', at_most(0.8), $samples[0], $samples[2]);
}
