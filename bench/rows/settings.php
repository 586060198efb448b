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
$samples = in_turn(array(calls('get_fw_settings', $times), program('commands', $times, ...$words),
    program('commands', $times, '--at-once', ...$words)), amount(15, 3));
ratio_row('get_fw_settings(), DHCP on', 'its scripts in turn, C++', 'ns', at_most(0.6), $samples[0], $samples[1]);
// What the processors leave of running all of them at the same time, without the module.
ratio_row('... its scripts at once, C++', 'its scripts in turn, C++', 'ns', null, $samples[2], $samples[1]);
ratio_row('... get_fw_settings(), DHCP on', 'its scripts at once, C++', 'ns', null, $samples[0], $samples[2]);
