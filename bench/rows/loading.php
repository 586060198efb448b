<?php
// Loading the module, beside the interpreter without it: time and memory of the process.
require dirname(__DIR__) . '/helpers.php';

$times = amount(10, 5);
$rounds = amount(41, 3);
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
}
// Whose that is: the mappings of a process with the module, by their files.
foreach (array('network\.so|libTarn|libVelm|libdovan_util' => 'the module and the three libraries', 'libstdc|libgcc|libm\.|libsqlite3' =>
    'the libraries of C++ and SQLite') as $files => $whose) {
    $print = '$sum = 0; $counts = false; foreach (file("/proc/self/smaps") as $line) { if (preg_match("/^[0-9a-f]+-/", $line))'
        . ' $counts = preg_match("#/(' . $files . ')#", $line); elseif ($counts && preg_match("/^Rss: *(\d+)/", $line, $found))'
        . ' $sum += $found[1]; } echo $sum * 1024, "\n";';
    $samples = in_turn(array(command(...interpreter(true), ...array('-r', $print)), command(...interpreter(false), ...array('-r', $print))),
        amount(5, 2));
    difference_row("... of that, $whose", 'the interpreter without it', 'bytes', null, $samples[0], $samples[1]);
}
