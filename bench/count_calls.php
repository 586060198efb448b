<?php
// count_calls.php FUNCTION START END: calls the function from START to END, in nanoseconds of the clock that hrtime()
// shows, and prints how often. Besides the module's functions there are those of calls.php.
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
for ($count = 0; hrtime(true) < $end; $count++) {
    $function();
}
echo $count, "\n";
