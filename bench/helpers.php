<?php
// What the rows share: taking samples in turn, and making a row of them. A row file prints one line of JSON for each
// row; bench/run collects them.

define('CHECKOUT', dirname(__DIR__));
define('PROGRAMS', CHECKOUT . '/build/bench');
define('MODULE', CHECKOUT . '/build/network.so');
define('TRACE_LOG', '/home/embedded/library/HTTPService/lighttpd/logs/php_extension.log');
define('WORK', getenv('BENCH_WORK')); // the folder of this run alone
define('ERRORS', WORK . '/errors'); // where the errors of the last command are
define('DOOR', '/run/appmanager/door');
define('DATABASE', '/home/embedded/library/CoreService/dat/management.db');
define('QUICK', getenv('BENCH_QUICK') == 'yes');

// The first number for a whole run, the second for a quick one.
function amount($whole, $quick) { return QUICK ? $quick : $whole; }

function at_most($number) { return array('<=', $number); }
function at_least($number) { return array('>=', $number); }

// Ends the row file; what was measured before stays, and the reason is shown with it.
function fail($sentence)
{
    @file_put_contents(WORK . '/' . row_file() . '.reason', $sentence);
    fwrite(STDERR, basename($_SERVER['argv'][0]) . ": $sentence\n");
    exit(1);
}

function row_file() { return basename($_SERVER['argv'][0], '.php'); }

// The last line that the command prints, which is a list of words or a line for the shell.
function last_line($command, $folder = null)
{
    $process = proc_open($command, array(0 => array('file', '/dev/null', 'r'), 1 => array('pipe', 'w'),
        2 => array('file', ERRORS, 'w')), $pipes, $folder);
    $lines = explode("\n", rtrim(stream_get_contents($pipes[1])));
    fclose($pipes[1]);
    $status = proc_close($process);
    if ($status != 0) {
        $errors = substr((string) @file_get_contents(ERRORS), -400);
        fail(implode(' ', (array) $command) . " ended with $status: $errors");
    }
    return end($lines);
}

// A candidate: a function that measures once and returns a number. This one lets a command do that.
function command(...$words)
{
    return function () use ($words) {
        $line = last_line($words);
        if (!is_numeric($line)) {
            fail(implode(' ', $words) . " printed \"$line\", which is no number");
        }
        return (float) $line;
    };
}

// An interpreter without the machine's settings, with the module or without it.
function interpreter($with_module)
{
    return array_merge(array(PHP_BINARY, '-n'), $with_module ? array('-d', 'extension=' . MODULE) : array());
}

// How many nanoseconds one call of the function in calls.php takes, in a process of its own.
function calls($function, $times)
{
    $sqlite = array('-d', 'extension=sqlite3'); // for what does it in plain PHP; the module's library uses the same
    return command(...array_merge(interpreter(true), $sqlite, array(__DIR__ . '/calls.php', $function, (string) $times)));
}

function program($name, ...$arguments) { return command(PROGRAMS . "/$name", ...array_map('strval', $arguments)); }

// Measures as on a device, where the web service has root's rights and there is no door: the wrapper becomes the command.
// Nobody else is in this appliance who would miss the door meanwhile, or later if measuring fails.
function as_on_a_device($measure)
{
    if (!rename(DOOR, DOOR . '.away')) {
        fail('there is no door to be put away');
    }
    $result = $measure();
    rename(DOOR . '.away', DOOR);
    return $result;
}

function register_traps($count)
{
    $commands = 'DELETE FROM trap_registrations;';
    for ($number = 1; $number <= $count; $number++) {
        $commands .= "INSERT INTO trap_registrations (identifier, transport, address, port)"
            . " VALUES (printf('%08x-%08x-%08x', $number, 2, 3), 1, '192.0.2.$number', 162);";
    }
    last_line(array('sqlite3', '-cmd', '.timeout 5000', DATABASE, $commands));
}

// Lets the candidates measure in turn, A B B A ..., and returns the samples of each. What comes first in a round changes, so
// that no one always finds the other's caches.
function in_turn($candidates, $rounds)
{
    $samples = array_fill_keys(array_keys($candidates), array());
    for ($round = 0; $round < $rounds; $round++) {
        foreach ($round % 2 == 0 ? $candidates : array_reverse($candidates, true) as $name => $measure) {
            $samples[$name][] = $measure();
        }
        @file_put_contents(TRACE_LOG, ''); // the disk is not what is measured
    }
    return $samples;
}

// Of an odd or even number of numbers: the one below which the part of them is, 0.5 for the median.
function quantile($numbers, $part)
{
    sort($numbers);
    $place = (count($numbers) - 1) * $part;
    $below = (int) floor($place);
    $above = (int) ceil($place);
    return $numbers[$below] + ($numbers[$above] - $numbers[$below]) * ($place - $below);
}

function median($numbers) { return quantile($numbers, 0.5); }
function spread($numbers) { return array(quantile($numbers, 0.25), quantile($numbers, 0.75)); }

// One row of two candidates. What is judged is their ratio, round by round.
function compare($what, $beside, $unit, $target, $ours, $theirs, $rounds)
{
    $samples = in_turn(array($ours, $theirs), $rounds);
    ratio_row($what, $beside, $unit, $target, $samples[0], $samples[1]);
}

function ratio_row($what, $beside, $unit, $target, $ours, $theirs)
{
    $ratios = array_map(function ($one, $other) { return $one / $other; }, $ours, $theirs);
    row($what, $beside, $unit, $target, 'ratio', $ratios, $ours, $theirs);
}

// For candidates whose samples have no rounds in common: each of the one is set beside each of the other.
function ratio_row_of_all_pairs($what, $beside, $unit, $target, $ours, $theirs)
{
    $ratios = array();
    foreach ($ours as $one) {
        foreach ($theirs as $other) {
            $ratios[] = $one / $other;
        }
    }
    row($what, $beside, $unit, $target, 'ratio', $ratios, $ours, $theirs);
}

// One row of two candidates. What is judged is their difference, round by round.
function difference_row($what, $beside, $unit, $target, $ours, $theirs)
{
    $differences = array_map(function ($one, $other) { return $one - $other; }, $ours, $theirs);
    row($what, $beside, $unit, $target, 'difference', $differences, $ours, $theirs);
}

// One of numbers that stand for themselves.
function value_row($what, $unit, $target, $ours) { row($what, '-', $unit, $target, 'value', $ours, $ours, array()); }

// $judged: what the target is about, 'ratio', 'difference' or 'value'; $numbers: that, round by round. $target: null where
// the number is only stated. Where the target lies within the middle half of the numbers, another run may see it otherwise.
function row($what, $beside, $unit, $target, $judged, $numbers, $ours, $theirs)
{
    $number = median($numbers);
    $spread = spread($numbers);
    $met = $is_close = null;
    if ($target !== null) {
        $meets = function ($number) use ($target) { return $target[0] == '<=' ? $number <= $target[1] : $number >= $target[1]; };
        $met = $meets($number);
        $is_close = $meets($spread[0]) != $meets($spread[1]);
    }
    $line = json_encode(array('name' => row_file(), 'what' => $what, 'unit' => $unit, 'ours' => median($ours),
        'ours_spread' => spread($ours), 'beside_what' => $beside, 'beside' => $theirs ? median($theirs) : null,
        'beside_spread' => $theirs ? spread($theirs) : null, 'judged' => $judged, $judged => $number,
        'spread' => $spread, 'rounds' => count($ours), 'target' => $target === null ? null : implode(' ', $target), 'met' => $met,
        'target_is_within_spread' => $is_close, 'failed' => null), JSON_UNESCAPED_SLASHES) . "\n";
    if (fwrite(STDOUT, $line) !== strlen($line)) {
        fail('its rows cannot be written');
    }
}

// The samples of Google Benchmark, which takes the repetitions of all in random order: name => nanoseconds of each.
// $pattern: the benchmarks.
function google_samples($pattern, $unit = 'real_time', $mode = array(), $repetitions = 11)
{
    $results = WORK . '/benchmark.json';
    $command = array_merge(array(PROGRAMS . '/parts'), $mode, array("--benchmark_filter=$pattern",
        '--benchmark_format=console', "--benchmark_out=$results", '--benchmark_out_format=json',
        '--benchmark_enable_random_interleaving=true', '--benchmark_repetitions=' . amount($repetitions, 5),
        '--benchmark_min_time=' . amount(0.05, 0.005)));
    last_line($command);
    file_put_contents(TRACE_LOG, '');
    $samples = array();
    foreach (json_decode(file_get_contents($results), true)['benchmarks'] as $one) {
        if ($one['run_type'] == 'iteration') {
            $samples[preg_replace('#/real_time$#', '', $one['run_name'])][] = $one[$unit];
        }
    }
    return $samples;
}
