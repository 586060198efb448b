<?php
// What a person can ask the network from the appliance: whether another device answers, and what a name stands for. Device
// scripts ask, one question at a time and for 5 seconds at most; a device that has not the scripts or their programs has none.

define('QUESTION_REFUSED', 2);
define('QUESTION_BUSY', 3);
define('QUESTION_SILENT', 4);

// Kind of question => its script, and what people call it.
$network_questions = array(
    'ping' => array('script' => 'pingAddress.sh', 'title' => 'Ping', 'label' => 'Address', 'button' => 'Ping'),
    'lookup' => array('script' => 'lookUpName.sh', 'title' => 'Name lookup', 'label' => 'Name or address',
        'button' => 'Look up'));

// The questions that this device can ask, of $network_questions.
function possible_questions()
{
    $possible = array();
    foreach ($GLOBALS['network_questions'] as $kind => $question) {
        $asked = run_question($question['script'], '-q');
        if ($asked['status'] == 0) {
            $possible[$kind] = $question;
        }
    }
    return $possible;
}

// What is wrong with the value of a question, or ''.
function question_error($kind, $value)
{
    if ($kind == 'ping' || is_address($value)) {
        return host_error($value);
    }
    return host_name_error($value);
}

// Asks, and says what came of it: array of 'kind' of message and 'lines'. The value is to be in order.
function ask_question($kind, $value)
{
    leave_session(); // whoever waits for the network keeps no other page waiting
    $asked = run_question($GLOBALS['network_questions'][$kind]['script'], $value);
    if ($asked['status'] == QUESTION_BUSY) {
        return array('kind' => 'caution',
            'lines' => array('Another question is being asked at the moment. Try again in some seconds.'));
    }
    if ($asked['status'] == QUESTION_SILENT) {
        return array('kind' => 'bad', 'lines' => array('No DNS server answered within 5 seconds.'));
    }
    if ($asked['status'] != 0) {
        return array('kind' => 'bad', 'lines' => array('The appliance could not ask.' . ($asked['status'] == QUESTION_REFUSED
            ? ' It does not take this value.' : '')));
    }
    return $kind == 'ping' ? ping_in_words($value, $asked['lines']) : lookup_in_words($value, $asked['lines']);
}

function ping_in_words($address, $lines)
{
    $said = array();
    foreach ($lines as $line) {
        $parts = explode(' ', $line, 2);
        $said[$parts[0]] = isset($parts[1]) ? $parts[1] : '';
    }
    $received = isset($said['received']) ? (int) $said['received'] : 0;
    $sent = isset($said['sent']) ? (int) $said['sent'] : 0;
    if ($received > 0) {
        $line = "$address answers: $received of $sent times";
        return array('kind' => $received == $sent ? 'good' : 'caution', 'lines' => array($line
            . (isset($said['milliseconds']) ? ', after ' . $said['milliseconds'] . ' ms on average.' : '.')));
    }
    return array('kind' => 'bad', 'lines' => array("$address does not answer." . (isset($said['error'])
        ? ' The network says: ' . $said['error'] . '.' : ' It may be off, elsewhere, or silent by its own settings.')));
}

function lookup_in_words($name, $lines)
{
    if (!$lines) {
        return array('kind' => 'bad', 'lines' => array(is_address($name) ? "No name is known for $name."
            : "No address is known for $name. Check the name, and the servers under DNS."));
    }
    return array('kind' => 'good', 'lines' => array("$name is " . implode(', ', array_slice($lines, 0, 8)) . '.'));
}

// $value has been judged: only letters, digits, hyphens, dots and colons get here.
function run_question($script, $value)
{
    $path = APPLIANCE_FOLDER . '/AppManager/bin/' . $script;
    $lines = array();
    $status = 1;
    if (is_file($path) && preg_match('/^[A-Za-z0-9.:-]{1,100}$/D', $value)) {
        exec("/bin/sh $path $value 2>/dev/null", $lines, $status);
    }
    return array('status' => $status, 'lines' => $lines);
}
