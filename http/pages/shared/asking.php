<?php
// Asking the device by the pages' own means: what is so now, and whether the scripts behind the module's functions answer at
// all. The module waits for a script as long as that takes; so its functions that read are called only when the scripts
// that they ask have just answered. All are asked at once, and nobody is waited for longer than ANSWER_SECONDS.

define('ANSWER_SECONDS', 3);
define('PATIENT_SECONDS', 0.2); // until other requests of the session are let go on
define('MOST_BYTES', 65536); // that are read of what a script prints
define('DEVICE_SCRIPTS', APPLIANCE_FOLDER . '/AppManager/bin/');
define('IPV6_SWITCH', APPLIANCE_FOLDER . '/CoreService/dat/ipv6Enabled'); // a file that is there while IPv6 is on
define('FACTS_SCRIPT', DEVICE_SCRIPTS . 'deviceFacts.sh');

// A function of the module => what it asks, of which script.
$questions_of = array(
    'get_network_configuration_ipv4' => array('ipv4Manager.sh -d status', 'ipv4Manager.sh -g static', 'ipv4Manager.sh -g host'),
    'get_network_configuration_ipv6' => array('ipv6Manager.sh -g static'),
    'is_ipv6_static_enabled' => array('ipv6Manager.sh -g static'),
    'is_stateless_enabled' => array('ipv6Manager.sh -l'),
    'get_all_ipv6_addresses' => array('ipv6Manager.sh -g all'),
    'get_network_dns' => array('ipv6Manager.sh -g dns'),
    'get_eth2_port_settings' => array('ipv4Manager.sh -g port'),
    'get_fw_settings' => array('ipv4Manager.sh -g host', 'ipv4Manager.sh -d status', 'ipv4Manager.sh -g static',
        'ipv4Manager.sh -g port', 'ipv6Manager.sh -l', 'ipv6Manager.sh -g static', 'ipv6Manager.sh -g all', 'ipv6Manager.sh -g dns')
);

$asked = false; // what is under way: array of 'process', 'pipes', 'texts' and 'end'

// Asks what is so now, and the questions of these functions; returns at once.
function ask_device($functions)
{
    $questions = array();
    foreach ($functions as $function) {
        foreach ($GLOBALS['questions_of'][$function] as $question) {
            $questions[$question] = DEVICE_SCRIPTS . $question . ' >/dev/null';
        }
    }
    if (has_facts()) {
        $questions[FACTS_SCRIPT] = FACTS_SCRIPT;
    }
    $commands = '';
    foreach ($questions as $question => $command) {
        $commands .= "(/bin/sh $command 3>&-; echo $question >&3) & ";
    }
    // Whoever is not done in time is ended, with all that he has started, where there is the program for that.
    $line = 'if command -v timeout >/dev/null; then exec timeout -s KILL ' . ANSWER_SECONDS . " /bin/sh -c '$commands wait'; fi; "
        . $commands;
    $pipes = array();
    $process = proc_open($line, array(0 => array('file', '/dev/null', 'r'), 1 => array('pipe', 'w'),
        2 => array('file', '/dev/null', 'w'), 3 => array('pipe', 'w')), $pipes);
    $pipes = $process ? array(1 => $pipes[1], 3 => $pipes[3]) : array();
    foreach ($pipes as $pipe) {
        stream_set_blocking($pipe, 0);
    }
    $GLOBALS['asked'] = array('process' => $process, 'pipes' => $pipes, 'texts' => array(1 => '', 3 => ''),
        'end' => seconds_now() + ANSWER_SECONDS);
    register_shutdown_function('end_asking');
}

// 4.3 says it in two parts.
function seconds_now()
{
    $parts = explode(' ', microtime());
    return $parts[0] + $parts[1];
}

// Nothing of it stays with the interpreter, which serves the next request in the same process.
function end_asking()
{
    foreach ($GLOBALS['asked']['pipes'] as $pipe) {
        fclose($pipe);
    }
    if ($GLOBALS['asked']['process']) {
        proc_close($GLOBALS['asked']['process']);
    }
    $GLOBALS['asked'] = array('process' => false, 'pipes' => array(), 'texts' => array(1 => '', 3 => ''), 'end' => 0);
}

// Whether the scripts that the function asks answer in time: then it can be called. When they do not, that is a failure
// like those that the module reports.
function answers($function)
{
    begin_reading();
    $all = true;
    foreach ($GLOBALS['questions_of'][$function] as $question) {
        if (!has_answered($question)) {
            note_silence($question);
            $all = false;
        }
    }
    return $all;
}

function has_answered($question)
{
    do {
        if (in_array($question, explode("\n", $GLOBALS['asked']['texts'][3]))) {
            return true;
        }
    } while (read_answers());
    return false;
}

// A device may have no script for what is so now.
function has_facts()
{
    return is_readable(FACTS_SCRIPT);
}

// All that this script has printed in time.
function printed_facts()
{
    has_answered(FACTS_SCRIPT);
    if (isset($GLOBALS['asked']['pipes'][1])) { // the last of it may have come together with the word that it is done
        $GLOBALS['asked']['texts'][1] .= fread($GLOBALS['asked']['pipes'][1], MOST_BYTES);
    }
    return $GLOBALS['asked']['texts'][1];
}

// Reads what comes next; false when nothing more comes, or not in time.
function read_answers()
{
    $left = $GLOBALS['asked']['end'] - seconds_now();
    if ($left <= 0 || !$GLOBALS['asked']['pipes']) {
        return false;
    }
    $came = pipes_with_answers(min($left, PATIENT_SECONDS));
    if (!$came && $left > PATIENT_SECONDS) {
        $came = pipes_without_session($left - PATIENT_SECONDS);
    }
    foreach ($came as $number) {
        $text = fread($GLOBALS['asked']['pipes'][$number], 8192);
        $GLOBALS['asked']['texts'][$number] .= $text;
        if ($text == '' || strlen($GLOBALS['asked']['texts'][$number]) > MOST_BYTES) {
            fclose($GLOBALS['asked']['pipes'][$number]);
            unset($GLOBALS['asked']['pipes'][$number]);
        }
    }
    return count($came) > 0;
}

// The numbers of the pipes that there is something to read from.
function pipes_with_answers($seconds)
{
    $pipes = $GLOBALS['asked']['pipes'];
    $readable = array_values($pipes);
    $none = null;
    $neither = null;
    $numbers = array();
    if (stream_select($readable, $none, $neither, (int) $seconds, (int) (1000000 * ($seconds - (int) $seconds)))) {
        foreach ($pipes as $number => $pipe) {
            if (in_array($pipe, $readable)) {
                $numbers[] = $number;
            }
        }
    }
    return $numbers;
}

// Other requests of the session need not wait for a script that hangs.
function pipes_without_session($seconds)
{
    $holds = session_id() != '' && empty($GLOBALS['session_left']);
    if ($holds) {
        leave_session();
    }
    $numbers = pipes_with_answers($seconds);
    if ($holds) {
        return_to_session();
    }
    return $numbers;
}

// An object for settings that nobody has said.
function unread($names)
{
    $object = new stdClass();
    foreach ($names as $name) {
        $object->$name = '';
    }
    return $object;
}
