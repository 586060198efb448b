<?php
// Shows what was measured: table.php heading | rows FILE | failed FOLDER NAME STATUS | json FOLDER FILE | has_place FILE |
// markdown FOLDER FILE
//
// The last one puts the table into the file, between its two lines that say so, or makes the file. It says whether a file
// has a place for it, or is none yet, with has_place: others are left alone. Files are written whole or not at all.

define('PLACE', '/(^<!-- table -->\n).*(^<!-- end of the table -->$)/ms');
define('LINE', "%-54s %11s %11s  %-21s %-9s %s\n");

// Three figures, whatever the size; the units that people read.
function figure($number)
{
    if ($number === null) {
        return '-';
    }
    $digits = $number == 0 ? 0 : max(0, 2 - (int) floor(log10(abs($number))));
    return number_format(round($number, $digits), min($digits, 3), '.', '');
}

function quantity($number, $unit)
{
    if ($number === null) {
        return '-';
    }
    $scales = array('ns' => array(array(1e9, 's'), array(1e6, 'ms'), array(1e3, 'us')),
        'bytes' => array(array(1048576, 'MiB'), array(1024, 'KiB')));
    foreach (isset($scales[$unit]) ? $scales[$unit] : array() as $scale) {
        if (abs($number) >= $scale[0]) {
            return figure($number / $scale[0]) . ' ' . $scale[1];
        }
    }
    return figure($number) . ($unit == '' ? '' : " $unit");
}

// The number that is judged, and where the middle half of the rounds was.
function judged($row)
{
    $show = function ($number) use ($row) {
        return $row['judged'] == 'ratio' ? figure($number) : quantity($number, $row['unit']);
    };
    if ($row['failed'] !== null) {
        return '-';
    }
    $number = $show($row[$row['judged']]);
    return $row['rounds'] < 2 ? $number : "$number ({$show($row['spread'][0])} - {$show($row['spread'][1])})";
}

function target($row)
{
    if ($row['target'] === null) {
        return '-';
    }
    list($sign, $number) = explode(' ', $row['target']);
    return $sign . ' ' . ($row['judged'] == 'ratio' ? $number : quantity((float) $number, $row['unit']));
}

function verdict($row)
{
    if ($row['failed'] !== null) {
        return "FAILED: {$row['failed']}";
    }
    if ($row['met'] === null) {
        return '';
    }
    return ($row['met'] ? 'met' : 'MISSED') . ($row['target_is_within_spread'] ? ' (within the spread)' : '');
}

// A measurement that was killed may have left a part of a line, before the row that says that it failed.
function rows_of($file)
{
    $rows = array();
    foreach (file($file, FILE_IGNORE_NEW_LINES | FILE_SKIP_EMPTY_LINES) as $line) {
        $rows[] = json_decode($line, true);
    }
    return array_values(array_filter($rows));
}

// Behind the rows of one that failed: the first line of its reason.
function add_failure($folder, $name, $status)
{
    $reason = (string) @file_get_contents("$folder/$name.reason");
    $reason = $reason == '' ? ($status == 0 ? 'it left no number' : "it ended with $status") : strtok($reason, "\n");
    $row = array_fill_keys(array('unit', 'ours', 'ours_spread', 'beside', 'beside_spread', 'spread', 'target', 'met',
        'target_is_within_spread'), null);
    $row = array('name' => $name, 'what' => "$name: the rest", 'beside_what' => '-', 'judged' => 'value', 'value' => null,
        'rounds' => 0, 'failed' => substr($reason, 0, 200)) + $row;
    file_put_contents("$folder/$name.rows", "\n" . json_encode($row, JSON_INVALID_UTF8_SUBSTITUTE | JSON_UNESCAPED_SLASHES) . "\n", FILE_APPEND);
}

function all_rows($folder) { return array_merge(array(), ...array_values(array_map('rows_of', glob("$folder/*.rows")))); }

// What the numbers depend on. The load is that of before: the measurements themselves are one.
function circumstances()
{
    preg_match('/^model name\s*: (.*)$/m', (string) file_get_contents('/proc/cpuinfo'), $processor);
    return array('time' => gmdate('Y-m-d H:i:s') . ' UTC', 'processor' => isset($processor[1]) ? $processor[1] : php_uname('m'),
        'processors' => substr_count(file_get_contents('/proc/cpuinfo'), "processor\t"), 'kernel' => php_uname('r'),
        'interpreter' => PHP_VERSION,
        'load_before' => (float) getenv('BENCH_LOAD'), 'quick' => getenv('BENCH_QUICK') == 'yes',
        'seconds' => time() - (int) getenv('BENCH_START'));
}

function markdown($rows)
{
    echo "| What | Beside | Ours | Theirs | Ratio or difference (middle half) | Target | | `bench/run` |\n", str_repeat('|---', 8), "|\n";
    foreach ($rows as $row) {
        echo '| ', implode(' | ', array($row['what'], $row['beside_what'], quantity($row['ours'], $row['unit']),
            quantity($row['beside'], $row['unit']), judged($row), target($row), strtr(verdict($row), '|', '/'), "`{$row['name']}`")),
            " |\n";
    }
}

function has_place($file) { return !is_file($file) || filesize($file) == 0 || preg_match(PLACE, file_get_contents($file)); }

// A full disk leaves the file as it was.
function replace_file($file, $text)
{
    $file = is_link($file) ? realpath($file) : $file;
    if (@file_put_contents("$file.new", $text) === strlen($text) && @rename("$file.new", $file)) {
        return;
    }
    @unlink("$file.new");
    fwrite(STDERR, "$file cannot be written.\n");
    exit(1);
}

switch ($argv[1]) {
    case 'heading':
        printf(LINE, 'what', 'ours', 'beside', 'ratio/difference', 'target', '');
        break;
    case 'rows':
        foreach (rows_of($argv[2]) as $row) {
            printf(LINE, $row['what'], quantity($row['ours'], $row['unit']), quantity($row['beside'], $row['unit']), judged($row),
                target($row), verdict($row));
        }
        break;
    case 'failed':
        add_failure($argv[2], $argv[3], $argv[4]);
        break;
    case 'json':
        replace_file($argv[3], json_encode(array('run' => circumstances(), 'rows' => all_rows($argv[2])),
            JSON_PRETTY_PRINT | JSON_UNESCAPED_SLASHES | JSON_THROW_ON_ERROR) . "\n");
        break;
    case 'has_place':
        exit(has_place($argv[2]) ? 0 : 1);
    case 'markdown':
        $facts = circumstances();
        ob_start();
        echo "{$facts['time']}, after {$facts['seconds']} seconds; {$facts['processors']} processors ({$facts['processor']}), ",
            "Linux {$facts['kernel']}, PHP {$facts['interpreter']}, load average before {$facts['load_before']}.\n\n";
        markdown(all_rows($argv[2]));
        $table = ob_get_clean();
        $text = (string) @file_get_contents($argv[3]);
        $put = function ($lines) use ($table) { return "{$lines[1]}\n$table\n{$lines[2]}"; };
        replace_file($argv[3], preg_match(PLACE, $text) ? preg_replace_callback(PLACE, $put, $text) : $table);
        break;
}
