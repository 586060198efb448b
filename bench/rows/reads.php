<?php
// Functions that ask device scripts, beside plain PHP with shell_exec of the same command lines.
require dirname(__DIR__) . '/helpers.php';

$times = amount(30, 4);
$rounds = amount(15, 3);
$measure = function ($where) use ($times, $rounds) {
    foreach (array('get_network_hostname', 'get_network_configuration_ipv4', 'get_network_dns') as $function) {
        compare("$function()$where", 'plain PHP, shell_exec', 'ns', at_most(0.6), calls($function, $times), calls("plain_$function", $times),
            $rounds);
    }
    // Where the time goes: the script itself takes as long for both.
    $script = array('/usr/bin/cmdwrap', '-NO_END_OF_FILE', '/bin/sh', '/home/embedded/library/AppManager/bin/ipv4Manager.sh', '-g', 'host');
    compare("... the command of get_network_hostname() alone$where", 'plain_get_network_hostname()', 'ns', null,
        program('commands', $times, ...$script), calls('plain_get_network_hostname', $times), $rounds);
};
$measure('');
as_on_a_device(function () use ($measure) { $measure(', as on a device'); });
