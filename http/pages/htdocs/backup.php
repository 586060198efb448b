<?php
require dirname(dirname(__FILE__)) . '/shared/page.php';
require dirname(dirname(__FILE__)) . '/shared/applying.php';
require dirname(dirname(__FILE__)) . '/shared/meanwhile.php';
require dirname(dirname(__FILE__)) . '/shared/settings_rules.php';
require dirname(dirname(__FILE__)) . '/shared/receivers.php';
require dirname(dirname(__FILE__)) . '/shared/backup_file.php';
require dirname(dirname(__FILE__)) . '/shared/backup.php';

// All settings as a file, and back. Nothing of an uploaded file is kept: the form that shows it carries it along.
$is_too_long = is_post() && !$_POST && text_of($_SERVER, 'CONTENT_LENGTH') > BACKUP_BYTES;
if ($is_too_long) {
    $_SERVER['REQUEST_METHOD'] = 'GET'; // the interpreter has thrown all of it away, so nothing is asked for
}
$session = signed_in();
ask_device();
$errors = $is_too_long ? array('file' => TOO_LONG_A_FILE) : array();
$wrong_lines = array();
$unreadable = array();
if (is_post() && posted('change') == 'download') {
    $unreadable = download($session, posted('without') == '1');
} elseif (is_post() && posted('change') == 'upload') {
    list($text, $error) = uploaded_text('file');
    if ($error != '') {
        $errors['file'] = $error;
    } else {
        $wrong_lines = look_at($session, $text, false);
    }
} elseif (is_post()) {
    $wrong_lines = look_at($session, text_of($_POST, 'file'), true);
}
if ($wrong_lines) {
    $errors['file'] = 'The file was refused: below are the lines that are wrong.';
}
show('backup', array('title' => 'Backup', 'errors' => $errors, 'wrong_lines' => $wrong_lines, 'unreadable' => $unreadable,
    'lead' => 'All settings as a file that you can read, edit and bring back.'));

// Sends the file, unless something cannot be read; returns the sections of that.
function download($session, $without)
{
    $parts = parts_of_now($session);
    $known = array();
    $unreadable = array();
    foreach ($parts as $section => $values) {
        if ($values === false) {
            $unreadable[] = $section;
        } else {
            $known[$section] = $values;
        }
    }
    if ($unreadable && !$without) {
        return $unreadable;
    }
    $name = isset($known['name']) && host_name_error($known['name']['host']) == '' ? $known['name']['host'] : 'appliance';
    $now = time();
    write_audit($session->user, text_of($_SERVER, 'REMOTE_ADDR'), 'Downloaded the settings as a file.',
        $unreadable ? 'Without ' . titles_of_parts($unreadable) . '.' : '', 'backup');
    if ($GLOBALS['audit_failed']) {
        return_to_session();
        $_SESSION['audit_failed'] = true; // a page says it
    }
    send_file('settings-' . $name . '-' . gmdate('Ymd-His', $now) . '.txt', 'text/plain', write_backup(array('host' => $name,
        'taken' => gmdate('Y-m-d H:i:s', $now) . ' UTC'), $known, remarks_of_file($unreadable)));
}

function remarks_of_file($unreadable)
{
    $remarks = array('Network settings of the appliance. Lines like this one are remarks.',
        'A section may be deleted: then its settings stay as they are when the file is applied.', '',
        'IN THIS FILE is the read community of the SNMP agent, which works like a password: keep the file where nobody else reads it.',
        'NOT IN IT, because these pages cannot read them, are the passwords of the accounts, the keys of SNMP version 3, the key',
        'of the certificate, and the static IPv4 address that the appliance remembers while DHCP is on.', '',
        '[traps] has a line "receiver = udp 10.20.0.1 162" for each receiver; without such lines there is none.',
        '[ipv4] has address, netmask and gateway with "mode = static" only, [ipv6-static] address, prefix and gateway',
        'with "enabled = on" only.');
    if ($unreadable) {
        $remarks[] = '';
        $remarks[] = 'NOT COMPLETE: these could not be read: ' . titles_of_parts($unreadable) . '.';
    }
    return $remarks;
}

// Shows what differs, after having applied what was chosen when $applies. Returns the wrong lines, when there are any.
function look_at($session, $text, $applies)
{
    $file = read_backup($text);
    if ($file['errors']) {
        $line = array_keys($file['errors']);
        // The file may have anything in it, so the reason is not written down.
        write_audit($session->user, text_of($_SERVER, 'REMOTE_ADDR'), 'A file of settings was refused.', '', 'backup', array(), array(),
            'refused: ' . ($line[0] == 0 ? 'the file' : 'line ' . $line[0]));
        return $file['errors'];
    }
    $results = $applies ? apply_chosen($session, $file['parts']) : array();
    ask_device();
    $now = parts_of_now($session);
    $compared = compare_parts($now, $file['parts']);
    if (!$applies) {
        write_audit($session->user, text_of($_SERVER, 'REMOTE_ADDR'), 'Looked at a file of settings.',
            $compared['rows'] ? 'Differs: ' . titles_of_parts(array_keys($compared['rows'])) . '.' : 'Nothing differs.', 'backup');
    }
    return_to_session();
    ask_device(false);
    $seen = array();
    foreach ($compared['rows'] as $section => $rows) {
        if (isset($GLOBALS['parts_on_trial'][$section])) {
            $seen[$section] = seen_on_page($session, $section);
        }
    }
    show('backup_compare', array('title' => 'Compare and apply', 'part_of' => 'backup.php', 'file' => $file, 'compared' => $compared,
        'results' => $results, 'seen' => $seen, 'sums' => seen_of_parts($now), 'errors' => $applies && !$results
        ? array('parts' => 'Choose at least one part.') : array(), 'lead' => $applies ? 'What came of it, and what still differs.'
        : 'Nothing has been changed yet: choose what is to be as in the file.'));
}

// Section => the kind of state, and what came of it in words.
function apply_chosen($session, $wanted)
{
    $results = array();
    $seen = seen_values();
    foreach ($GLOBALS['parts_at_once'] as $section => $function) {
        if (isset($wanted[$section]) && posted('part_' . $section) == '1') {
            $results[$section] = apply_part($session, $section, $wanted[$section], $seen);
        }
    }
    return $results;
}
