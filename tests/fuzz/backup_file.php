<?php
// The file of settings that the pages read. Takes the fuzzer's options that run gives, and behaves as the other targets do:
//
//   backup_file.php [-seed=N] [-max_total_time=SECONDS] [-runs=N] [-artifact_prefix=PREFIX] FOLDER
//   backup_file.php FILE                                                     tries this one input
//
// A number makes all of a run: with the same seed the same inputs follow each other. An input whose outcome is a new one (which
// sections, which complaints) is changed further.
error_reporting(E_ALL);
define('CHECKOUT', dirname(dirname(dirname(__FILE__))));
define('INTERNAL_NETWORKS', CHECKOUT . '/appliance/device/etc/internal_networks');
foreach (array('addresses', 'settings_rules', 'receivers', 'backup_file') as $part) {
    require CHECKOUT . "/http/pages/shared/$part.php";
}

class DoesNotHold extends Exception
{
}

set_error_handler(function ($level, $message, $file, $line) {
    throw new DoesNotHold("the interpreter complains: $message in " . basename($file) . ", line $line");
});

function must($holds, $sentence)
{
    if (!$holds) {
        throw new DoesNotHold($sentence);
    }
}

// What a file says, without the places of it.
function said($file)
{
    return array($file['about'], $file['parts'], $file['errors']);
}

function try_input($text)
{
    $file = read_backup($text);
    must(said(read_backup($text)) === said($file), 'the same file says the same');
    check_errors($file, $text);
    // These two change nothing of what a file says.
    if (strlen($text) < BACKUP_BYTES / 2 && !isset($file['errors'][0])) {
        if (strpos($text, "\r") === false) {
            must(said(read_backup(str_replace("\n", "\r\n", $text))) === said($file), 'line ends of two characters say the same');
            must(said(read_backup(str_replace("\n", "\r", $text))) === said($file), 'line ends of the third kind say the same');
        }
        must(strpos($text, "\r") !== false || said(read_backup("$text\n# remark")) === said($file), 'a remark at the end says nothing');
    }
    if (!$file['errors']) {
        check_accepted($file);
    }
    return $file;
}

function check_errors($file, $text)
{
    $lines = substr_count($text, strpos($text, "\n") === false ? "\r" : "\n") + 1;
    $last = -1;
    foreach ($file['errors'] as $number => $error) {
        must(is_int($number) && $number > $last && $number <= $lines, 'an error has a line of the file, in order');
        must(is_string($error) && preg_match('/^[A-Z"][^\x00-\x1f\x7f]*\.$/D', $error) && is_utf8($error), 'an error is a sentence');
        must($number > 0 || count($file['errors']) == 1, 'the file as a whole has one error');
        $last = $number;
    }
}

// A file that is accepted is the same file when it is written anew.
function check_accepted($file)
{
    $written = write_backup($file['about'], $file['parts'], array('remark'));
    $again = read_backup($written);
    if (getenv('FUZZ_PLANTED_FAULT') && isset($again['parts']['traps']) && count($again['parts']['traps']) == 1) {
        $again['parts']['traps'] = array();
    }
    must(!$again['errors'], 'what is written can be read: ' . implode(' ', $again['errors']));
    must($again['parts'] === in_order($file['parts'], $again['parts']), 'all settings are read as they were written');
    must(write_backup($again['about'], $again['parts'], array('remark')) === $written, 'written again it is the same text');
    foreach ($file['parts'] as $section => $values) {
        check_values($section, $values);
    }
}

// Sections stay in their order, the values of one as well.
function in_order($parts, $again)
{
    must(array_keys($parts) === array_keys($again), 'the sections are the same');
    return $parts;
}

// What is handed to the module has the form that the device knows.
function check_values($section, $values)
{
    $names = $GLOBALS['backup_parts'][$section]['names'];
    foreach ($values as $name => $value) {
        // What parts fields, on the way to the device, may stand in a community alone: that goes another way.
        $parting = $name === 'community' ? '/[\x00-\x20\x7f"\']/' : '/[\x00-\x1f\x7f"\'?]/';
        must(is_string($value) && strlen($value) <= BACKUP_LINE_BYTES && !preg_match($parting, $value),
            'a value has no character that would part it');
        must($section == 'traps' || isset($names[$name]), 'a name is one of the section');
        must(!isset($names[$name]['values']) || in_array($value, $names[$name]['values'], true), 'a value is one of those that it can have');
    }
    must($section != 'traps' || count($values) <= MOST_RECEIVERS && count(array_unique($values)) == count($values),
        'the receivers are few and different');
}

// Inputs.

function pick($list)
{
    return $list[mt_rand(0, count($list) - 1)];
}

function lines_of_everything()
{
    $lines = array('', '#', '[', ']', '=', "\xef\xbb\xbf", '[backup]', 'version = 1', 'version = 2', str_repeat('x', 501), "a\tb = c");
    foreach ($GLOBALS['backup_parts'] as $section => $part) {
        $lines[] = "[$section]";
        foreach ($part['names'] as $name => $described) {
            foreach (isset($described['values']) ? $described['values'] : array() as $value) {
                $lines[] = "$name = $value";
            }
            $lines[] = "$name =";
        }
    }
    return $lines;
}

$values = array('on', 'off', 'ON', 'static', 'dhcp', '10', '100', 'half', 'full', 'public', 'library', 'a.b-c', '10.20.0.7', '10.20.0.1',
    '255.255.255.0', '255.255.255.254', '0.0.0.0', '10.020.0.7', '192.168.250.3', '2001:db8:20::7', '2001:DB8:20:0:0:0:0:7', 'fe80::1',
    '::', '::ffff:10.20.0.1', '64', '064', '128', 'udp 10.20.0.1 162', 'TCP  fe80::1 00162', 'udp 2001:db8::0:1 65535', 'tcp ::1 162',
    "\xc3\xa4", "\xed\xa0\x80", '?', '"', '"x"', ' ', '', '-', 'a=b', '0', '1', '-1', '1e1', '99999999999999999999', str_repeat('a', 64),
    str_repeat('1', 490));

function change_lines($text)
{
    static $known = null;
    $known = $known === null ? lines_of_everything() : $known;
    $lines = explode("\n", $text);
    $at = mt_rand(0, count($lines) - 1);
    switch (mt_rand(0, 5)) {
        case 0:
            array_splice($lines, $at, mt_rand(1, 3));
            break;
        case 1:
            array_splice($lines, $at, 0, array(pick($known)));
            break;
        case 2:
            array_splice($lines, $at, 0, array_slice($lines, mt_rand(0, count($lines) - 1), mt_rand(1, 4)));
            break;
        case 3:
            $other = mt_rand(0, count($lines) - 1);
            list($lines[$at], $lines[$other]) = array($lines[$other], $lines[$at]);
            break;
        case 4:
            $lines[$at] = 'receiver = ' . pick(array('udp', 'tcp', 'sctp')) . ' 10.20.' . mt_rand(0, 260) . '.' . mt_rand(0, 9) . ' '
                . mt_rand(0, 70000);
            break;
        default:
            $parts = explode('=', $lines[$at], 2);
            $lines[$at] = $parts[0] . '=' . pick(array('', ' ', "\t")) . pick($GLOBALS['values']);
    }
    return implode("\n", $lines);
}

function change_bytes($text)
{
    $at = mt_rand(0, strlen($text));
    switch (mt_rand(0, 4)) {
        case 0:
            return substr($text, 0, $at);
        case 1:
            return substr($text, 0, $at) . substr($text, $at + mt_rand(1, 3));
        case 2:
            return substr($text, 0, $at) . chr(mt_rand(0, 255)) . substr($text, $at + mt_rand(0, 1));
        case 3:
            return substr($text, 0, $at) . pick($GLOBALS['values']) . substr($text, $at);
        default:
            return substr($text, 0, $at) . pick(array("\n", "\r\n", ' ', '=', '#', '[', ']', "\xc3")) . substr($text, $at);
    }
}

function changed($text, $other)
{
    for ($times = pick(array(1, 1, 1, 2, 2, 5)); $times > 0; $times--) {
        $kind = mt_rand(0, 11);
        $text = $kind < 4 ? with_section_of($text, $other) : ($kind < 9 ? change_lines($text) : change_bytes($text));
    }
    return strlen($text) > 4096 && mt_rand(0, 99) > 0 ? substr($text, 0, 4096) : $text;
}

// A whole section of the other one, in the place of the same one where there is one.
function with_section_of($text, $other)
{
    $section = pick(array_keys($GLOBALS['backup_parts']));
    $form = '/^\[' . $section . '\][^[]*/m';
    if (!preg_match($form, $other, $found)) {
        return $text;
    }
    $rest = preg_replace($form, '', $text);
    return rtrim($rest === null ? $text : $rest) . "\n" . $found[0];
}

// What became of it, in short.
function outcome($file)
{
    $counts = array();
    foreach ($file['parts'] as $section => $values) {
        $counts[] = $section . count($values);
    }
    sort($counts);
    return implode(' ', $file['errors'] ? array_unique(preg_replace('/[0-9]+/', '', $file['errors'])) : $counts);
}

function attempt($text, $prefix)
{
    try {
        return try_input($text);
    } catch (DoesNotHold $fault) {
        fprintf(STDERR, "does not hold: %s\n", $fault->getMessage());
        if ($prefix !== null) {
            file_put_contents($prefix . 'crash-' . sha1($text), $text);
        }
        exit(1);
    }
}

function fuzz($folder, $options)
{
    $given = array_map('file_get_contents', glob("$folder/*"));
    $pools = array(array(''), array('')); // refused, accepted
    mt_srand((int) $options['seed']);
    $end = microtime(true) + $options['max_total_time'];
    $seen = array();
    $accepted = 0;
    for ($count = 0; $count < $options['runs'] && ($count % 64 != 0 || microtime(true) < $end); $count++) {
        $text = $count < count($given) ? $given[$count] : changed(pick($pools[mt_rand(0, 7) > 0]), pick($pools[1]));
        $file = attempt($text, $options['artifact_prefix']);
        $is_accepted = (int) !$file['errors'];
        $accepted += $is_accepted;
        $outcome = outcome($file);
        if (!isset($seen[$outcome]) && count($pools[$is_accepted]) < 2000) {
            $seen[$outcome] = true;
            $pools[$is_accepted][] = $text;
        }
    }
    // A run that refused all has tried only half.
    if ($accepted * 20 < $count) {
        fprintf(STDERR, "Of %d files %d are accepted.\n", $count, $accepted);
        exit(1);
    }
    fprintf(STDERR, "INFO: %d files accepted, %d outcomes\nstat::number_of_executed_units: %d\n", $accepted, count($seen), $count);
}

$options = array('seed' => mt_rand(), 'max_total_time' => PHP_INT_MAX, 'runs' => PHP_INT_MAX, 'artifact_prefix' => '');
$paths = array();
foreach (array_slice($argv, 1) as $argument) {
    if (preg_match('/^-([a-z_]+)=(.*)$/D', $argument, $found)) {
        $options[$found[1]] = $found[2];
    } else {
        $paths[] = $argument;
    }
}
fprintf(STDERR, "INFO: Seed: %s\n", $options['seed']);
if (is_dir(end($paths))) {
    fuzz(end($paths), $options);
} else {
    attempt(file_get_contents(end($paths)), null);
}
