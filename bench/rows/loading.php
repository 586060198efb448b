<?php
// Loading the module, beside the interpreter without it: time and memory of the process.
require dirname(__DIR__) . '/helpers.php';

$times = amount(10, 5);
$rounds = amount(41, 3);
$samples = in_turn(array(program('commands', $times, ...interpreter(true), ...array('-r', ';')),
    program('commands', $times, ...interpreter(false), ...array('-r', ';'))), $rounds);
difference_row('loading the module: time', 'the interpreter without it', 'ns', at_most(1e6), $samples[0], $samples[1]);
// What the module stands on, opened the same way: the interpreter says that SQLite's library is no module, and goes on. (Those of
// C++ it has already.)
$library = preg_replace('/^.*libsqlite3\S* => (\S+).*$/', '$1', last_line('ldd ' . dirname(MODULE) . '/libVelm.so | grep libsqlite3'));
$with_sqlite = array_merge(interpreter(false), array('-d', 'display_startup_errors=0', '-d', 'error_log=/dev/null', '-d',
    "extension=$library"));
$samples = in_turn(array(program('commands', $times, ...$with_sqlite, ...array('-r', ';')),
    program('commands', $times, ...interpreter(false), ...array('-r', ';'))), $rounds);
difference_row('... the library of SQLite alone: time', 'the interpreter without it', 'ns', null, $samples[0], $samples[1]);
// Counted, which no other work on the machine changes: what it takes to open the one and the other.
function instructions_to_open($command)
{
    last_line(array_merge(array('valgrind', '--tool=callgrind', '--callgrind-out-file=/dev/null', '--toggle-collect=php_load_extension'),
        $command, array('-r', ';')));
    if (!preg_match('/Collected : ([1-9]\d*)/', file_get_contents(ERRORS), $found)) {
        fail('valgrind counted nothing');
    }
    return array((int) $found[1]);
}
ratio_row('... the library of SQLite alone: instructions to open it', 'the module and its libraries', 'instr.', null,
    instructions_to_open($with_sqlite), instructions_to_open(interpreter(true)));
// A thing that was loaded once is in the memory once, whoever uses it; what a process has of its own is its memory.
foreach (array('Private_Dirty' => 'memory of its own', 'Rss' => 'all of the memory, shared, too') as $field => $what) {
    $print = 'preg_match("/^' . $field . ': *(\d+)/m", file_get_contents("/proc/self/smaps_rollup"), $found); echo $found[1] * 1024, "\n";';
    $samples = in_turn(array(command(...interpreter(true), ...array('-r', $print)), command(...interpreter(false), ...array('-r', $print))),
        $rounds);
    difference_row("loading the module: $what", 'the interpreter without it', 'bytes', at_most(300 * 1024), $samples[0], $samples[1]);
}
// Whose that is: the mappings of a process with the module, by their files.
foreach (array('network\.so|libTarn|libVelm|libdovan_util' => 'the module and the three libraries', 'libsqlite3' => 'the library of SQLite',
    'libstdc|libgcc|libm\.' => 'the libraries of C++') as $files => $whose) {
    $print = '$sum = 0; $counts = false; foreach (file("/proc/self/smaps") as $line) { if (preg_match("/^[0-9a-f]+-/", $line))'
        . ' $counts = preg_match("#/(' . $files . ')#", $line); elseif ($counts && preg_match("/^Rss: *(\d+)/", $line, $found))'
        . ' $sum += $found[1]; } echo $sum * 1024, "\n";';
    $samples = in_turn(array(command(...interpreter(true), ...array('-r', $print)), command(...interpreter(false), ...array('-r', $print))),
        amount(5, 2));
    difference_row("... of that, $whose", 'the interpreter without it', 'bytes', null, $samples[0], $samples[1]);
}
