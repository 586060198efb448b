<?php
// count_calls.php FUNCTION START END: calls the function from START to END, in nanoseconds of the clock that hrtime()
// shows, and prints how often, and how many nanoseconds of a processor that took. Besides the module's functions there are
// those of calls.php.
require __DIR__ . '/calls.php';
list(, $function, $start, $end) = $argv;
$function();
if (hrtime(true) >= $start) {
    fwrite(STDERR, "It was too late to start.\n");
    exit(1);
}
while (hrtime(true) < $start) {
    usleep(500);
}
// By this process, and by the kernel for it.
function processor_time()
{
    $used = getrusage();
    return 1e9 * ($used['ru_utime.tv_sec'] + $used['ru_stime.tv_sec']) + 1e3 * ($used['ru_utime.tv_usec'] + $used['ru_stime.tv_usec']);
}

$before = processor_time();
for ($count = 0; hrtime(true) < $end; $count++) {
    $function();
}
echo $count, ' ', processor_time() - $before, "\n";
