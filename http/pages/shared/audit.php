<?php
// The audit: who did what, from where, with which values and what came of it. A line each, its fields separated by tabs, in a
// file for each kind, so that what is frequent pushes nothing else out. audit_list.php is the reading of it.
//
//   time, user, client, what, details, subject, old values, new values, result, when it began, how often, check sum
//
// Earlier versions wrote the first five alone.

define('AUDIT_FILE', PRIVATE_FOLDER . '/audit');
define('AUDIT_LOCK', PRIVATE_FOLDER . '/audit.lock');
define('AUDIT_LINE_BYTES', 2048); // of a line
define('AUDIT_FIELD_BYTES', 240); // of a field
define('AUDIT_PATIENCE', 2); // seconds that a line waits for another one
define('AUDIT_FOLDED_SECONDS', 86400); // what is refused to one user at one place within this time is one line
define('VALUE_SEPARATOR', "\x1e"); // between two values of a field
define('LABEL_SEPARATOR', "\x1f"); // between a value's label and its text
define('MORE_VALUES', 'and'); // the label of how many values found no room

// Kind => its file, and the lines that are kept.
$audit_files = array(
    'changes' => array('file' => AUDIT_FILE, 'lines' => 500),
    'sign-ins' => array('file' => AUDIT_FILE . '.sign-ins', 'lines' => 300),
    'refusals' => array('file' => AUDIT_FILE . '.refused', 'lines' => 600)
);

// What an entry can be about => what people call it.
$audit_subjects = array('sign-in' => 'Signing in and out', 'account' => 'Accounts', 'ipv4' => 'IPv4', 'name' => 'Host name',
    'ipv6' => 'IPv6', 'dns' => 'DNS', 'port' => 'Ethernet port', 'ssl' => 'Web security', 'snmp' => 'SNMP agent',
    'traps' => 'Trap receivers', 'backup' => 'Backup', 'rights' => 'Rights', 'other' => 'Other');

// The past of the words with which a change begins.
$past_of = array('Add' => 'Added', 'Delete' => 'Deleted', 'Send' => 'Sent', 'Set' => 'Set', 'Switch' => 'Switched');

$audit_secrets = array('community'); // of these values only that they were changed is written down
$audit_failed = false; // whether this request could not write what it did
$request_began = audit_now();

// With thousandths: it ties what the management services say of a change to the entry of the page.
function audit_now()
{
    $parts = explode(' ', microtime());
    return sprintf('%d.%03d', $parts[1], 1000 * $parts[0]);
}

// Writes down what was done. $user: who is signed in, or the name that was typed. $client: its address, '' for the appliance
// itself. $what: a sentence; $old and $new: label => text, never a secret; $result: 'done', or 'begun', 'undone', 'refused' or
// 'failed', each with ': ' and the reason. $began: when the change began. Returns whether that worked: a change is not refused
// because it did not, but the page says so.
function write_audit($user, $client, $what, $details = '', $subject = 'other', $old = array(), $new = array(), $result = 'done',
    $began = 0)
{
    $accounts = read_accounts();
    $entry = array('time' => audit_now(),
        // What is no account's name may be a password in the wrong field.
        'user' => isset($accounts[$user]) ? $user : '', 'client' => plain_address($client), 'what' => $what,
        'details' => $details, 'subject' => $subject, 'old' => $old, 'new' => $new, 'result' => $result,
        'began' => $began > 0 ? $began : audit_now(), 'count' => 1);
    make_private_folders();
    $lock = audit_lock();
    $written = $lock && store_in_audit(audit_kind($entry), $entry);
    if ($lock) {
        fclose($lock);
    }
    if (!$written) {
        error_log('The audit cannot be written to ' . AUDIT_FILE . '.');
        $GLOBALS['audit_failed'] = true;
    }
    return $written;
}

// Writes down that the signed-in user was refused something.
function audit_refusal($session, $subject, $what, $reason)
{
    return write_audit($session->user, text_of($_SERVER, 'REMOTE_ADDR'), $what, '', $subject, array(), array(),
        'refused: ' . $reason);
}

// Writes down a change just behind the module's function that made it: $verb (one of $past_of) and $object are its sentence,
// $labels has what people call the values. It has failed when $failure says why, or when the module reported something.
function audit_change($session, $subject, $verb, $object, $labels = array(), $old = array(), $new = array(),
    $failure = '')
{
    foreach ($GLOBALS['audit_secrets'] as $name) {
        if (isset($old[$name], $new[$name])) {
            $is_same = $old[$name] === $new[$name];
            $old[$name] = 'not shown';
            $new[$name] = $is_same ? 'not shown' : 'another one';
        }
    }
    if ($failure == '' && change_failed()) {
        $failure = $GLOBALS['failures'][count($GLOBALS['failures']) - 1]['message'];
    }
    return write_audit($session->user, text_of($_SERVER, 'REMOTE_ADDR'),
        sentence_of($failure == '', $verb, $object), '', $subject,
        labelled($old, $labels), labelled($new, $labels), $failure == '' ? 'done' : 'failed: ' . $failure,
        $GLOBALS['request_began']);
}

function sentence_of($is_done, $verb, $object)
{
    return ($is_done ? $GLOBALS['past_of'][$verb] : 'Tried to ' . strtolower($verb)) . ' ' . $object . '.';
}

// name => text becomes label => text; what has no label is left out.
function labelled($values, $labels)
{
    $labelled = array();
    foreach ($labels as $name => $label) {
        if (isset($values[$name])) {
            $labelled[$label] = $values[$name];
        }
    }
    return $labelled;
}

function audit_kind($entry)
{
    // What anybody can have refused as often as they like; what the appliance refuses is among the changes.
    $is_who_may = $entry['subject'] == 'sign-in' || $entry['subject'] == 'account' || $entry['subject'] == 'rights';
    if ($is_who_may && kind_of_result($entry['result']) == 'refused') {
        return 'refusals';
    }
    return $entry['subject'] == 'sign-in' ? 'sign-ins' : 'changes';
}

// 'done', 'begun', 'undone', 'refused' or 'failed'.
function kind_of_result($result)
{
    $parts = explode(':', $result, 2);
    return $parts[0];
}

// Whoever writes keeps others waiting; false when it takes too long.
function audit_lock()
{
    $mask = umask(077);
    $lock = @fopen(AUDIT_LOCK, 'ab');
    umask($mask);
    for ($step = 0; $lock && !flock($lock, LOCK_EX | LOCK_NB); $step++) {
        if ($step >= 20 * AUDIT_PATIENCE) {
            fclose($lock);
            return false;
        }
        usleep(50000);
    }
    return $lock;
}

function store_in_audit($kind, $entry)
{
    $path = $GLOBALS['audit_files'][$kind]['file'];
    $most = $GLOBALS['audit_files'][$kind]['lines'];
    $lines = audit_lines($kind);
    $folded = $kind == 'refusals' ? line_to_fold($lines, $entry) : -1;
    if ($folded >= 0) {
        $before = audit_entry($lines[$folded]);
        $entry['count'] += $before['count'];
        $entry['began'] = $before['began'];
        array_splice($lines, $folded, 1);
    }
    $line = audit_line($entry);
    if ($folded < 0 && count($lines) < $most && audit_size($path) < $most * AUDIT_LINE_BYTES) {
        return append_line($path, $line, $kind == 'changes');
    }
    // Anew, without what is damaged.
    $kept = array();
    foreach (array_slice($lines, -($most - 1)) as $old_line) {
        if (audit_entry($old_line)) {
            $kept[] = $old_line;
        }
    }
    $kept[] = $line;
    return @replace_file($path, implode("\n", $kept) . "\n", $kind == 'changes');
}

// The line about the same, of the same user and place, of the same day, or -1. Who has a whole network of addresses has one
// place. It is another line for each user: the last name that is tried hides none of those before.
function line_to_fold($lines, $entry)
{
    $place = network_of($entry['client']);
    foreach ($lines as $i => $line) {
        $before = audit_entry($line);
        if ($before && $before['what'] == $entry['what'] && $before['user'] === $entry['user']
            && network_of($before['client']) == $place && abs($entry['time'] - $before['began']) < AUDIT_FOLDED_SECONDS) {
            return $i;
        }
    }
    return -1;
}

// A line that was cut off by a power cut must not swallow this one, and one for which there is no room leaves nothing behind.
function append_line($path, $line, $durable)
{
    $mask = umask(077);
    $file = @fopen($path, 'a+b');
    umask($mask);
    if (!$file) {
        return false;
    }
    $size = audit_size($path);
    $text = ($size > 0 && fseek($file, $size - 1) == 0 && fgetc($file) != "\n" ? "\n" : '') . $line . "\n";
    $written = @fwrite($file, $text) === strlen($text) && @fflush($file) && (!$durable || put_on_disk($file));
    if (!$written) {
        @ftruncate($file, $size);
    }
    fclose($file);
    return $written;
}

function audit_size($path)
{
    clearstatcache();
    return is_file($path) ? filesize($path) : 0;
}

// The lines of a kind, oldest first, without their ends; of a file that is longer than it can be, the end.
function audit_lines($kind)
{
    $path = $GLOBALS['audit_files'][$kind]['file'];
    $lines = array();
    $file = is_file($path) && is_readable($path) ? @fopen($path, 'rb') : false;
    if (!$file) {
        return $lines;
    }
    $most = $GLOBALS['audit_files'][$kind]['lines'];
    fseek($file, max(0, audit_size($path) - $most * AUDIT_LINE_BYTES));
    while (($line = fgets($file, AUDIT_LINE_BYTES)) !== false) {
        if (trim($line) != '') {
            $lines[] = rtrim($line, "\n");
        }
    }
    fclose($file);
    return array_slice($lines, -$most);
}

// What is there and cannot be read.
function unreadable_audits()
{
    $names = array();
    foreach ($GLOBALS['audit_files'] as $name => $about) {
        if (file_exists($about['file']) && !(is_file($about['file']) && is_readable($about['file']))) {
            $names[] = 'the ' . $name;
        }
    }
    return $names;
}

function audit_line($entry)
{
    $fields = array();
    foreach ($entry as $name => $value) {
        $fields[] = is_array($value) ? audit_values($value) : audit_text($value, AUDIT_FIELD_BYTES);
    }
    $line = implode("\t", $fields);
    return $line . "\t" . sprintf('%08x', crc32($line));
}

// On one line.
function audit_text($text, $bytes)
{
    $text = trim(preg_replace('/[\x00-\x1f\x7f]+/', ' ', (string) $text));
    return strlen($text) <= $bytes ? $text : whole_characters(substr($text, 0, $bytes)) . '...';
}

function audit_values($values)
{
    $texts = array();
    foreach ($values as $label => $value) {
        $texts[] = audit_text($label, 40) . LABEL_SEPARATOR . audit_text($value, 100);
    }
    $more = '';
    // Whole values only, and how many are left out.
    for ($left_out = 1; $texts && strlen(implode(VALUE_SEPARATOR, $texts) . $more) > AUDIT_FIELD_BYTES; $left_out++) {
        $texts = array_slice($texts, 0, -1);
        $more = VALUE_SEPARATOR . MORE_VALUES . LABEL_SEPARATOR . $left_out . ' more';
    }
    return implode(VALUE_SEPARATOR, $texts) . $more;
}

// Without the first bytes of a character that was cut off.
function whole_characters($text)
{
    return preg_replace('/[\xc0-\xff][\x80-\xbf]{0,2}$/D', '', $text);
}

// What a line says, or false when it is damaged.
function audit_entry($line)
{
    $fields = explode("\t", $line);
    if (count($fields) == 5 && (int) $fields[0] > 0) {
        $fields = array_merge($fields, array('other', '', '', 'done', $fields[0], '1'));
    } elseif (count($fields) != 12 || $fields[11] != sprintf('%08x', crc32(substr($line, 0, strlen($line) - 9)))) {
        return false;
    }
    return array('time' => (float) $fields[0], 'user' => $fields[1], 'client' => $fields[2], 'what' => $fields[3],
        'details' => $fields[4], 'subject' => isset($GLOBALS['audit_subjects'][$fields[5]]) ? $fields[5] : 'other',
        'old' => values_of_audit($fields[6]), 'new' => values_of_audit($fields[7]), 'result' => $fields[8],
        'began' => (float) $fields[9], 'count' => max(1, (int) $fields[10]));
}

function values_of_audit($text)
{
    $values = array();
    foreach ($text == '' ? array() : explode(VALUE_SEPARATOR, $text) as $value) {
        $parts = explode(LABEL_SEPARATOR, $value, 2);
        $values[$parts[0]] = isset($parts[1]) ? $parts[1] : '';
    }
    return $values;
}

// What a change on trial has come to. $operation: 'begun', 'kept', 'undoing', 'undone', ...; $user and $client: whose doing that
// is.
function write_audit_of_trial($trial, $operation, $user, $client, $details)
{
    $kind = $GLOBALS['kinds_of_change'][$trial['kind']];
    $old = labelled(values_before($trial['kind'], $trial['before'], $trial['values']), $kind['labels']);
    $new = labelled($trial['values'], $kind['labels']);
    $is_back = $operation == 'undoing' || $operation == 'undone' || $operation == 'could not be undone';
    $outcomes = array('begun' => 'begun', 'kept' => 'done', 'undoing' => 'begun', 'undone' => 'undone',
        'could not be undone' => 'failed', 'refused by the appliance' => 'refused');
    $outcome = isset($outcomes[$operation]) ? $outcomes[$operation] : 'done';
    return write_audit($user, $client, $kind['name'] . ' ' . $operation, $details, $trial['kind'],
        $is_back ? $new : $old, $is_back ? $old : $new, $outcome . ($details == '' || $outcome == 'done' ? '' : ': ' . $details),
        $is_back && $trial['undo_began'] > 0 ? $trial['undo_began'] : 0);
}

// The settings before a change on trial, under the names that its kind has. $changed: the values that are wanted, of IPv6 the other
// settings are left out then; or false.
function values_before($kind, $before, $changed = false)
{
    if ($kind == 'ipv4') {
        return $before['dhcp'] ? array('mode' => 'DHCP') : array('mode' => 'Static', 'ip' => $before['ip'],
            'netmask' => $before['netmask'], 'gateway' => $before['gateway']);
    }
    if ($kind == 'ipv6') {
        $values = array();
        $settings = array('enabled' => 'enabled', 'stateless' => 'stateless', 'dhcp' => 'dhcp', 'mode' => 'static');
        foreach ($settings as $name => $setting) {
            if (!$changed || isset($changed[$name])) {
                $values[$name] = $before[$setting] ? 'On' : 'Off';
            }
        }
        foreach (array('ip', 'prefix', 'gateway') as $name) {
            if ($before['static'] && (!$changed || isset($changed[$name]) || isset($changed['mode']))) {
                $values[$name] = short_ipv6($before[$name]);
            }
        }
        return $values;
    }
    $values = array();
    foreach ($GLOBALS['kinds_of_change'][$kind]['labels'] as $name => $label) {
        $values[$name] = $before[$name] ? 'On' : 'Off';
    }
    return $values;
}
