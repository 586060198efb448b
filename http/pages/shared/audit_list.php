<?php
// Reading the audit: what the pages have written down and what the management services have, in one list.

define('AUDIT_PAGE_ENTRIES', 10);
define('AFTER_BEGUN', 30); // seconds that a change goes on after the entry that it has begun

// Operation of the management services => its subject here.
$subjects_of_operations = array('setSSLEnabled' => 'ssl', 'setSNMPVersions' => 'snmp', 'setAuthTrapsEnabled' => 'snmp',
    'setReadCommunity' => 'snmp', 'restartSNMP' => 'snmp', 'createTrapRegistration' => 'traps',
    'deleteTrapRegistration' => 'traps');

// All entries, newest first, and what is missing: array of the two, the second as audit_gaps() has it. $services:
// audit_entries(). What the services say of a change by a page is under that entry's 'operations'; what nobody of the pages
// asked for is an entry of its own.
function whole_audit($services)
{
    $entries = array();
    $damaged = 0;
    $own = 0;
    foreach (array('changes', 'sign-ins', 'refusals') as $kind) {
        foreach (audit_lines($kind) as $line) {
            $entry = audit_entry($line);
            if ($entry) {
                $entry['operations'] = array();
                $entry['order'] = count($entries);
                $entries[] = $entry;
            } else {
                $damaged++;
            }
        }
        // Only a change makes the services do anything.
        $own = $kind == 'changes' ? count($entries) : $own;
    }
    $receivers = array();
    $first = 0; // of the changes that may still have gone on: both are in the order of time
    // Oldest first: what is deleted has been added before.
    for ($i = ($services ? count($services) : 0) - 1; $i >= 0; $i--) {
        $operation = without_secrets($services[$i]);
        $time = time_of_services($operation['time']);
        while ($first < $own && $entries[$first]['time'] + AFTER_BEGUN < $time) {
            $first++;
        }
        $owner = owner_of($operation, $time, $entries, $first, $own);
        if ($owner >= 0) {
            $entries[$owner]['operations'][] = $operation;
        } else {
            $entry = entry_of_services($operation, $time, $receivers);
            $entry['order'] = count($entries);
            $entries[] = $entry;
        }
        $receivers = known_receivers($operation, $receivers);
    }
    usort($entries, 'newer_first');
    return array($entries, audit_gaps($services !== false, $damaged));
}

// What the list lacks: sentences, each with its kind of message.
function audit_gaps($has_services, $damaged)
{
    $gaps = array();
    if (!$has_services) {
        $gaps['The audit trail of the management services cannot be read: what they did without a page is missing.'] = 'bad';
    }
    if (unreadable_audits()) {
        $gaps['What the pages have written down cannot all be read: missing are ' . implode(', ', unreadable_audits()) . '.'] = 'bad';
    }
    if ($damaged > 0) {
        $gaps[$damaged == 1 ? 'One line of the audit is damaged and is left out.'
            : $damaged . ' lines of the audit are damaged and are left out.'] = 'caution';
    }
    return $gaps;
}

function newer_first($one, $other)
{
    if ($other['time'] == $one['time']) {
        return $other['order'] - $one['order'];
    }
    return $other['time'] > $one['time'] ? 1 : -1;
}

// Whoever may read the audit need not know the community.
function without_secrets($operation)
{
    if ($operation['operation'] == 'setReadCommunity') {
        $operation['values'] = 'not shown';
        $operation['result'] = preg_replace('/"[^"]*"/', '"..."', $operation['result']);
    }
    return $operation;
}

// Of a text such as "2026-11-22T03:46:53.123Z".
function time_of_services($text)
{
    if (!preg_match('/^(\d{4})-(\d\d)-(\d\d)T(\d\d):(\d\d):(\d\d)(\.\d+)?/', $text, $part)) {
        return 0;
    }
    $fraction = isset($part[7]) ? (float) ('0' . $part[7]) : 0;
    return $fraction + gmmktime((int) $part[4], (int) $part[5], (int) $part[6], (int) $part[2], (int) $part[3], (int) $part[1]);
}

// The entry of the change by a page that this was a part of, or -1: of those from $first on that were under way at that time the
// last that began.
function owner_of($operation, $time, $entries, $first, $own)
{
    $owner = -1;
    for ($i = $first; $i < $own; $i++) {
        if ($time >= $entries[$i]['began'] && is_part_of($operation, $time, $entries[$i])
            && ($owner < 0 || $entries[$i]['began'] >= $entries[$owner]['began'])) {
            $owner = $i;
        }
    }
    return $owner;
}

function is_part_of($operation, $time, $entry)
{
    $name = $operation['operation'];
    $subject = isset($GLOBALS['subjects_of_operations'][$name]) ? $GLOBALS['subjects_of_operations'][$name] : '';
    $outcome = kind_of_result($entry['result']);
    $is_on_trial = $outcome == 'begun' || $outcome == 'undone';
    // A new host name switches HTTPS on again, in nobody's name.
    $is_of_name = $subject == 'ssl' && ($entry['subject'] == 'name' || $entry['subject'] == 'ipv4');
    $ends = $entry['time'] + ($outcome == 'begun' ? AFTER_BEGUN : 0);
    return $time <= $ends && ($is_of_name
        || ($subject == $entry['subject'] && ($is_on_trial || $operation['user'] == $entry['user'])));
}

// Identifier => what people call the receiver, with what this operation adds.
function known_receivers($operation, $receivers)
{
    if ($operation['operation'] == 'createTrapRegistration'
        && preg_match('/^(transport .*), id (\S+)$/', $operation['values'], $found)) {
        $receivers[$found[2]] = receiver_in_words($found[1]);
    }
    return $receivers;
}

// As in "transport 1, address 10.20.0.1, port 162".
function receiver_in_words($values)
{
    if (!preg_match('/^transport (\d+), address (.*), port (\d+)/', $values, $found)) {
        return $values;
    }
    $transports = array('1' => ', UDP', '2' => ', TCP');
    return $found[2] . ', port ' . $found[3] . (isset($transports[$found[1]]) ? $transports[$found[1]] : '');
}

// What the services did without a page.
function entry_of_services($operation, $time, $receivers)
{
    $result = $operation['result'] == 'stored' ? 'done' : $operation['result'];
    $name = $operation['operation'];
    $subjects = $GLOBALS['subjects_of_operations'];
    return array('time' => $time, 'user' => $operation['user'], 'client' => '',
        'what' => services_in_words($operation, $receivers), 'details' => '', 'subject' => isset($subjects[$name]) ? $subjects[$name] : 'other', 'old' => array(), 'new' => array(),
        'result' => $result, 'began' => $time, 'count' => 1, 'operations' => array($operation));
}

// An operation of the services as a sentence.
function services_in_words($operation, $receivers = array())
{
    $values = $operation['values'];
    $is_done = $operation['result'] == 'stored';
    switch ($operation['operation']) {
        case 'setSSLEnabled':
            return sentence_of($is_done, 'Switch', 'HTTPS ' . ($values == 'enabled' ? 'on' : 'off'));
        case 'setSNMPVersions':
            return sentence_of($is_done, 'Set', 'the agent\'s versions: ' . versions_in_words($values));
        case 'setAuthTrapsEnabled':
            return sentence_of($is_done, 'Switch', 'the trap about a wrong community ' . ($values == 'enabled' ? 'on' : 'off'));
        case 'setReadCommunity':
            return sentence_of($is_done, 'Set', 'the read community');
        case 'createTrapRegistration':
            return sentence_of($is_done, 'Add', 'the trap receiver ' . receiver_in_words($values));
        case 'deleteTrapRegistration':
            $id = preg_replace('/^id /', '', $values);
            return sentence_of($is_done, 'Delete', 'the trap receiver '
                . (isset($receivers[$id]) ? $receivers[$id] : 'with the identifier ' . $id));
        case 'restoreSettings':
            return $values;
    }
    return $operation['operation'] . ($values == '' ? '' : ': ' . $values);
}

// The numbers of the versions, as the services have them.
function versions_in_words($numbers)
{
    $names = array('1' => 'version 1', '2' => 'version 2c', '3' => 'version 3', '4' => 'traps of version 1',
        '5' => 'traps of version 2c');
    $words = array();
    foreach ($names as $number => $name) {
        if (in_array((string) $number, explode(' ', $numbers))) {
            $words[] = $name;
        }
    }
    return $words ? implode(', ', $words) : 'none';
}

// Values that stayed are left out, unless none is another one: texts such as "Address 10.0.0.1 → 10.0.0.2".
function differences($entry)
{
    $texts = array();
    $all = array();
    $is_cut = isset($entry['new'][MORE_VALUES]) || isset($entry['old'][MORE_VALUES]);
    foreach ($entry['new'] + $entry['old'] as $label => $nothing) {
        if ($is_cut && $entry['old'] && $entry['new'] && !isset($entry['old'][$label], $entry['new'][$label])) {
            continue; // it may be among those that found no room
        }
        $old = isset($entry['old'][$label]) ? $entry['old'][$label] : '';
        $new = isset($entry['new'][$label]) ? $entry['new'][$label] : '';
        $all[] = $label . ' ' . ($new == '' ? 'none' : $new);
        if ($old !== $new) {
            $texts[] = $label . ' ' . ($old == '' ? 'none' : $old) . ' → ' . ($new == '' ? 'none' : $new);
        }
    }
    return $texts && $entry['old'] ? $texts : $all;
}

// $wanted: array of 'user', 'subject' and 'outcome', '' for all.
function filtered_audit($entries, $wanted)
{
    $found = array();
    foreach ($entries as $entry) {
        if (($wanted['user'] == '' || $entry['user'] === $wanted['user'])
            && ($wanted['subject'] == '' || $entry['subject'] === $wanted['subject'])
            && ($wanted['outcome'] == '' || kind_of_result($entry['result']) === $wanted['outcome'])) {
            $found[] = $entry;
        }
    }
    return $found;
}

// Who occurs, for the filter.
function users_of($entries)
{
    $users = array();
    foreach ($entries as $entry) {
        if ($entry['user'] != '') {
            $users[$entry['user']] = $entry['user'];
        }
    }
    ksort($users);
    return $users;
}

// The entries as a table for other programs (RFC 4180), with a row for each of the $gaps in front. Spreadsheets that guess the
// encoding know it by the mark at the beginning.
function audit_as_csv($entries, $gaps)
{
    $csv = "\xef\xbb\xbf" . csv_line(array('Time (UTC)', 'User', 'From', 'Subject', 'What', 'Values', 'Outcome', 'Reason',
        'How often', 'Operations'));
    foreach ($gaps as $gap => $kind) {
        $csv .= csv_line(array('', '', '', 'Audit', $gap, '', 'failed', '', '', ''));
    }
    foreach ($entries as $entry) {
        $operations = array();
        foreach ($entry['operations'] as $operation) {
            $operations[] = $operation['operation'] . ' ' . $operation['values'] . ' (' . $operation['result'] . ')';
        }
        $csv .= csv_line(array(gmdate('Y-m-d H:i:s', (int) $entry['time']), $entry['user'], $entry['client'],
            $GLOBALS['audit_subjects'][$entry['subject']], $entry['what'], implode('; ', differences($entry)),
            kind_of_result($entry['result']), reason_of($entry), $entry['count'], implode('; ', $operations)));
    }
    return $csv;
}

function csv_line($cells)
{
    foreach ($cells as $i => $cell) {
        // A spreadsheet would take these for the beginning of a formula.
        $harmless = preg_match('/^[\s]*[=+@-]/', $cell) ? "'" . $cell : $cell;
        $cells[$i] = '"' . str_replace('"', '""', $harmless) . '"';
    }
    return implode(',', $cells) . "\r\n";
}

function reason_of($entry)
{
    $parts = explode(': ', $entry['result'], 2);
    return isset($parts[1]) ? $parts[1] : $entry['details'];
}

// What came of it: kind of state and words.
function outcome_in_words($outcome)
{
    $words = $GLOBALS['audit_outcomes'];
    return isset($words[$outcome]) ? $words[$outcome] : array('off', ucfirst($outcome));
}

$audit_outcomes = array('done' => array('good', 'Done'), 'begun' => array('wait', 'Begun'),
    'undone' => array('caution', 'Undone'),
    'refused' => array('bad', 'Refused'), 'failed' => array('bad', 'Failed'));
