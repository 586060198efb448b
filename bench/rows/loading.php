<?php
// Loading the module, beside the interpreter without it: time and memory of the process.
require dirname(__DIR__) . '/helpers.php';

$times = amount(40, 5);
$rounds = amount(15, 3);
$samples = in_turn(array(program('commands', $times, ...interpreter(true), ...array('-r', ';')),
    program('commands', $times, ...interpreter(false), ...array('-r', ';'))), $rounds);
difference_row('loading the module: time', 'the interpreter without it', 'ns', at_most(1e6), $samples[0], $samples[1]);
// What the module stands on, without the module.
$libraries = array('/usr/bin/env', 'LD_PRELOAD=libstdc++.so.6 libsqlite3.so.0');
$nothing = array('/usr/bin/env', 'LD_PRELOAD=');
$samples = in_turn(array(program('commands', $times, ...$libraries, ...interpreter(false), ...array('-r', ';')),
    program('commands', $times, ...$nothing, ...interpreter(false), ...array('-r', ';'))), $rounds);
difference_row('... the libraries of C++ and SQLite alone: time', 'the interpreter without them', 'ns', null, $samples[0], $samples[1]);
// A thing that was loaded once is in the memory once, whoever uses it; what a process has of its own is its memory.
foreach (array('Private_Dirty' => 'memory of its own', 'Rss' => 'all of the memory, shared, too') as $field => $what) {
    $print = 'preg_match("/^' . $field . ': *(\d+)/m", file_get_contents("/proc/self/smaps_rollup"), $found); echo $found[1] * 1024, "\n";';
    $samples = in_turn(array(command(...interpreter(true), ...array('-r', $print)), command(...interpreter(false), ...array('-r', $print))),
        $rounds);
    difference_row("loading the module: $what", 'the interpreter without it', 'bytes', at_most(300 * 1024), $samples[0], $samples[1]);
    $samples = in_turn(array(command(...$libraries, ...interpreter(false), ...array('-r', $print)),
        command(...$nothing, ...interpreter(false), ...array('-r', $print))), $rounds);
    difference_row("... the libraries of C++ and SQLite alone: $what", 'the interpreter without them', 'bytes', null, $samples[0], $samples[1]);
}
