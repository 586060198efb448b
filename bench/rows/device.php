<?php
// A read by a device script beside an empty /bin/sh script; cmdwrap beside the command without it.
require dirname(__DIR__) . '/helpers.php';

$times = amount(50, 5);
$rounds = amount(15, 3);
$bin = '/home/embedded/library/AppManager/bin';
file_put_contents('/tmp/empty.sh', "#!/bin/sh\n");
$reads = array('ipv4Manager.sh -d status', 'ipv4Manager.sh -g static', 'ipv4Manager.sh -g host', 'ipv4Manager.sh -g port',
    'ipv6Manager.sh -l', 'ipv6Manager.sh -g static', 'ipv6Manager.sh -g dns', 'ipv6Manager.sh -g all');
foreach ($reads as $read) {
    compare("a read: $read", 'an empty /bin/sh script', 'ns', at_most(2),
        program('commands', $times, '/bin/sh', ...explode(' ', "$bin/$read")), program('commands', $times, '/bin/sh', '/tmp/empty.sh'),
        $rounds);
}

$wrapper = array('/usr/bin/cmdwrap', '-NO_END_OF_FILE');
$read = array('/bin/sh', "$bin/ipv4Manager.sh", '-g', 'host');
$wrapped_and_not = function () use ($times, $wrapper, $read, $rounds) {
    return in_turn(array(program('commands', $times, ...$wrapper, ...$read), program('commands', $times, ...$read)), $rounds);
};
// What one wrapped command says of itself: whether it is the process that was started.
$is_same = function () use ($wrapper) {
    $process = proc_open(array_merge($wrapper, array('/bin/sh', '-c', 'echo $$')), array(1 => array('pipe', 'w')), $pipes);
    $is_same = (int) stream_get_contents($pipes[1]) == proc_get_status($process)['pid'];
    proc_close($process);
    return $is_same;
};
$samples = as_on_a_device($wrapped_and_not);
difference_row('cmdwrap, as on a device', 'the command without it', 'ns', at_most(300000), $samples[0], $samples[1]);
value_row('cmdwrap, as on a device: processes more', '', at_most(0), array(as_on_a_device($is_same) ? 0 : 1));
$samples = $wrapped_and_not();
difference_row('... cmdwrap in the software appliance, through the door', 'the command without it', 'ns', null, $samples[0], $samples[1]);
