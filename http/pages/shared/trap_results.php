<?php
// What became of a test trap at each receiver.

// What a device script has kept of a test that began at this time or later: receiver in the agent's notation => the outcome, of
// the versions of traps the one that says more. Empty where the device keeps none.
function results_of_test($began)
{
    $lines = array();
    $status = 1;
    exec('/bin/sh ' . APPLIANCE_FOLDER . '/AppManager/bin/testTrapResults.sh 2>/dev/null', $lines, $status);
    $results = array();
    $is_of_test = false;
    foreach ($status == 0 ? $lines : array() as $line) {
        $parts = explode(' ', $line);
        if ($parts[0] == 'time' && isset($parts[1])) {
            $is_of_test = $parts[1] >= $began;
        }
        if ($is_of_test && count($parts) == 3 && (!isset($results[$parts[0]]) || $parts[2] == 'refused' || $parts[2] == 'unreachable')) {
            $results[$parts[0]] = $parts[2];
        }
    }
    return $results;
}

function receiver_in_notation($receiver)
{
    return ($receiver->transport == 1 ? 'udp' : 'tcp') . (strpos($receiver->ip, ':') === false ? ':' . $receiver->ip
        : '6:[' . $receiver->ip . ']') . ':' . $receiver->port;
}

function outcome_of_trap($outcome)
{
    $texts = array('sent' => 'Sent', 'connected' => 'Taken', 'refused' => 'Refused', 'unreachable' => 'Not reached');
    return isset($texts[$outcome]) ? $texts[$outcome] : 'Not known';
}

// Receiver => what became of it, in words: those that failed first, for the audit has no room for all.
function outcomes_for_audit($results)
{
    $failed = array();
    $others = array();
    ksort($results);
    foreach ($results as $receiver => $outcome) {
        if ($outcome == 'sent' || $outcome == 'connected') {
            $others[$receiver] = outcome_of_trap($outcome);
        } else {
            $failed[$receiver] = outcome_of_trap($outcome);
        }
    }
    return $failed + $others;
}

// State and explanation, as markup.
function outcome_of_trap_in_words($outcome)
{
    $kinds = array('sent' => 'good', 'connected' => 'good', 'refused' => 'bad', 'unreachable' => 'bad');
    $hints = array('sent' => 'UDP tells no more: look there whether it has arrived.',
        'connected' => 'The receiver has taken the connection.',
        'refused' => 'Nothing listens at this port there.', 'unreachable' => 'No connection within 3 seconds, or no way there.');
    return state(isset($kinds[$outcome]) ? $kinds[$outcome] : 'off', outcome_of_trap($outcome))
        . (isset($hints[$outcome]) ? '<p class="hint">' . h($hints[$outcome]) . '</p>' : '');
}
