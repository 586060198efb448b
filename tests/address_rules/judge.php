<?php
// Judges the cases of the table: judge.php TABLE PROGRAM LIST_OF_INTERNAL_NETWORKS
error_reporting(E_ALL);
define('INTERNAL_NETWORKS', $argv[3]);
require dirname(dirname(dirname(__FILE__))) . '/http/pages/shared/addresses.php';

const WHAT = array('settings' => 'the settings', 'address' => 'the address', 'netmask' => 'the netmask',
    'prefix' => 'the prefix length', 'gateway' => 'the gateway', 'primary' => 'the name server',
    'secondary' => 'the name server', 'name' => 'the host name');

list(, $table, $program, $networks) = $argv;

// The values by field, or only the whole as settings, when it does not have their form.
function fields_of($kind, $values)
{
    $forms = array('ipv4' => '/^(?<address>[^?]*)\?(?<netmask>[^?]*)\?(?<gateway>[^?]*)$/Ds',
        'ipv6' => '/^(?<address>[^?\/]*)\/(?<prefix>[^?\/]*)\?(?<gateway>[^?\/]*)$/Ds',
        'dns' => '/^(?<primary>[^ ]*)(?: (?<secondary>.*))?$/Ds', 'host-name' => '/^(?<name>.*)$/Ds');
    return preg_match($forms[$kind], $values, $found) ? $found : array('settings' => $values);
}

// What the program answers: its exit status and what it says.
function ask_program($arguments)
{
    $process = proc_open($arguments, array(1 => array('pipe', 'w'), 2 => array('redirect', 1)), $pipes);
    $said = stream_get_contents($pipes[1]);
    return proc_close($process) . ' ' . $said;
}

function expected_of_device($verdict, $why, $fields)
{
    if ($verdict == 'accepted') {
        return '0 ';
    }
    $status = WHAT[$verdict] == 'the name server' && strpos($why, 'lies in') === 0 ? 44 : 2;
    return "$status " . WHAT[$verdict] . " \"$fields[$verdict]\" $why\n";
}

// The fields that the pages find wrong, joined, or "accepted"; "-" for what no form can send.
function verdict_of_pages($kind, $fields)
{
    if (isset($fields['settings'])) {
        return '-';
    }
    $errors = array();
    if ($kind == 'ipv4') {
        $errors = ipv4_errors($fields['address'], $fields['netmask'], $fields['gateway']);
    } elseif ($kind == 'ipv6') {
        $errors = ipv6_errors($fields['address'], $fields['prefix'], $fields['gateway']);
    } elseif ($kind == 'host-name') {
        $errors = array_filter(array('name' => host_name_error($fields['name'])));
    } else {
        foreach (array('primary', 'secondary') as $field) {
            if (isset($fields[$field]) && $fields[$field] != '' && host_error($fields[$field]) != '') {
                $errors[$field] = true;
            }
        }
        if (!$errors && isset($fields['secondary']) && second_server_error($fields['primary'], $fields['secondary']) != '') {
            $errors['secondary'] = true;
        }
    }
    $names = str_replace(array('ipStatic', 'ip'), 'address', array_keys($errors));
    return $names ? implode(',', $names) : 'accepted';
}

function report($title, $expected, $was)
{
    echo $expected === $was ? "ok $title\n" : "not ok $title\n  expected: " . rtrim($expected) . "\n  was:      " . rtrim($was) . "\n";
}

$seen = array();
foreach (file($table, FILE_IGNORE_NEW_LINES) as $number => $line) {
    if ($line == '' || $line[0] == '#') {
        continue;
    }
    $columns = array_map('trim', explode('|', $line));
    list($kind, $values, $verdict, $why, $pages, $reason) = array_pad($columns, 6, '');
    if (preg_match('/^"(.*)"$/D', $values, $found)) {
        $values = $found[1];
    }
    $title = "line " . ($number + 1) . ": $kind \"$values\"";
    $well_formed = count($columns) <= 6 && ($verdict == 'accepted' ? $why == '' : isset(WHAT[$verdict]) && $why != '')
        && ($pages == '') == ($reason == '') && $pages != $verdict && !isset($seen[$kind . $values]);
    if (!$well_formed) {
        echo "not ok $title is a case of its own in the form that the table's head says\n";
        continue;
    }
    $seen[$kind . $values] = true;
    $fields = fields_of($kind, $values);
    report("$title, device", expected_of_device($verdict, $why, $fields),
        ask_program(array($program, '--internal-networks', $networks, $kind, $values)));
    report("$title, pages", $pages == '' ? $verdict : $pages, verdict_of_pages($kind, $fields));
}
echo "ok the table has come to its end\n";
