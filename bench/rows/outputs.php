<?php
// Long answers: 10 000 addresses, per address; 64 and 65 MiB of output, beside read into a reserved buffer.
require dirname(__DIR__) . '/helpers.php';

// A script that prints so many addresses takes the place of the device's; this appliance is for these numbers alone.
$script = '/home/embedded/library/AppManager/bin/ipv6Manager.sh';
$devices = file_get_contents($script);
$measures = array();
foreach (array(0, 1000, 10000) as $count) {
    $addresses = array();
    for ($number = 0; $number < $count; $number++) {
        $addresses[] = sprintf('2001:db8::%x:%x', intdiv($number, 65536), $number % 65536);
    }
    file_put_contents("/tmp/addresses.$count", implode('?', $addresses) . "\n");
    $measure = calls('get_all_ipv6_addresses', $count == 0 ? amount(50, 5) : amount(5, 1));
    $measures[$count] = function () use ($measure, $script, $count) {
        file_put_contents($script, "exec cat /tmp/addresses.$count\n");
        return $measure();
    };
}
$samples = in_turn($measures, amount(15, 3));
file_put_contents($script, $devices);
$per_address = function ($from, $to) use ($samples) {
    return array_map(function ($less, $more) use ($from, $to) { return ($more - $less) / ($to - $from); }, $samples[$from], $samples[$to]);
};
ratio_row('get_all_ipv6_addresses(), per address, 1000 to 10000', 'from 0 to 1000', 'ns', at_most(1.3), $per_address(1000, 10000),
    $per_address(0, 1000));

function long_output($way, $what, $mebibytes)
{
    return program('long_output', $way, $what, $mebibytes, '/usr/bin/head', '-c', $mebibytes * 1048576, '/dev/zero');
}

// The text doubles as it grows: 64 MiB is where it fits best, one more where it fits worst.
foreach (array(array('time', 'ns', 1.5, 64), array('memory', 'bytes', 2.2, 64), array('memory', 'bytes', 2.2, 65))
    as list($what, $unit, $target, $mebibytes)) {
    compare("$mebibytes MiB of output: $what", 'read, reserved buffer', $unit, at_most($target), long_output('runtime', $what, $mebibytes),
        long_output('bare', $what, $mebibytes), amount(15, 3));
}
// Where the time goes: the length is not known before.
compare('... a text that grows, without Runtime', 'read, reserved buffer', 'ns', null, long_output('growing', 'time', 64),
    long_output('bare', 'time', 64), amount(15, 3));
