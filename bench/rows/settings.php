<?php
// get_fw_settings(), beside the device scripts it needs, run one after the other in C++.
require dirname(__DIR__) . '/helpers.php';

$times = amount(20, 2);
$bin = '/home/embedded/library/AppManager/bin';
$words = array();
foreach (array('ipv4Manager.sh -g host', 'ipv4Manager.sh -d status', 'ipv6Manager.sh -l', 'ipv6Manager.sh -g static',
    'ipv6Manager.sh -g all', 'ipv6Manager.sh -g dns', 'ipv4Manager.sh -g port') as $read) {
    $words = array_merge($words, $words ? array('--') : array(), array('/bin/sh'), explode(' ', "$bin/$read"));
}
compare('get_fw_settings(), DHCP on', 'its scripts in turn, C++', 'ns', at_most(0.6), calls('get_fw_settings', $times),
    program('commands', $times, ...$words), amount(15, 3));
