<?php
// What a change that goes on after the answer has come to: the values that are wanted beside those in force, and what
// the trace log says.

// The values as they are now, under the names that a change of this kind has.
function values_now($session, $kind)
{
    if ($kind == 'ipv4') {
        $now = get_network_configuration_ipv4($session);
        return array('mode' => $now->dhcpEnabled ? 'DHCP' : 'Static', 'ip' => $now->ip, 'netmask' => $now->netmask,
            'gateway' => $now->gateway);
    }
    $now = get_network_configuration_ipv6($session);
    return array('mode' => $now->staticEnabled ? 'On' : 'Off', 'ip' => $now->ipStatic, 'prefix' => $now->prefix,
        'gateway' => $now->gateway, 'enabled' => is_ipv6_enabled(), 'addresses' => get_all_ipv6_addresses());
}

// Each wanted value beside the one in force: name => array of 'label', 'wanted', 'now' and 'same'.
function compare_values($change, $now)
{
    $rows = array();
    foreach ($change['values'] as $name => $wanted) {
        $rows[$name] = array('label' => $GLOBALS['kinds_of_change'][$change['kind']]['labels'][$name], 'wanted' => $wanted,
            'now' => present_value($now[$name]), 'same' => same_value($wanted, $now[$name]));
    }
    if ($change['kind'] == 'ipv4' && $change['values']['mode'] == 'DHCP') {
        $address = present_value($now['ip']);
        $rows['ip'] = array('label' => 'Address', 'wanted' => 'From the DHCP server', 'now' => $address,
            'same' => $address != 'None' && $now['mode'] == 'DHCP');
    }
    if ($change['kind'] == 'ipv6' && $change['values']['mode'] == 'On' && $now['enabled']) {
        $used = is_among($change['to'], $now['addresses']);
        $rows['used'] = array('label' => 'In use', 'wanted' => 'Yes', 'now' => $used ? 'Yes' : 'No', 'same' => $used);
    }
    return $rows;
}

function is_among($address, $others)
{
    foreach ($others as $other) {
        if (same_value($address, $other)) {
            return true;
        }
    }
    return false;
}

// A value as it is shown: the module says with zeros that there is none.
function present_value($value)
{
    $short = short_ipv6($value);
    return $short == '::' || $short == '0.0.0.0' || $short == '' ? 'None' : $short;
}

function all_as_wanted($rows)
{
    foreach ($rows as $row) {
        if (!$row['same']) {
            return false;
        }
    }
    return true;
}

// What the trace log says about changes since this one began.
function lines_about($change)
{
    if ($change['outcome'] != 'waiting') {
        return $change['lines'];
    }
    $lines = trace_lines_since($change['trace'], TRACED_CHANGE);
    return $lines ? $lines : array();
}

// How many changes of the kind have begun, are done and have failed, as these lines of the trace log say.
function progress_of($change, $lines)
{
    $progress = array();
    foreach ($GLOBALS['traced_changes'][$change['kind']] as $step => $pattern) {
        $progress[$step] = 0;
        foreach ($lines as $line) {
            $progress[$step] += preg_match($pattern, $line);
        }
    }
    return $progress;
}

function has_ended($progress)
{
    $ended = $progress['done'] + $progress['failed'];
    return $ended > 0 && $ended >= $progress['begun'];
}

function seconds_since($change)
{
    return max(0, time() - $change['began']);
}

// What the change has come to: 'applied' or 'failed', which stays so whatever is changed later; else 'waiting', or 'late'
// when its time is over, which may still become one of the others. $lines: what the trace log says about it.
function outcome_of($change, $rows, $lines)
{
    if ($change['outcome'] != 'waiting') {
        return $change['outcome'];
    }
    $same = all_as_wanted($rows);
    $progress = progress_of($change, $lines);
    // Several may go on at the same time: which of them has failed is known when all have ended.
    if (has_ended($progress)) {
        // The settings read as wanted some time before they are in force.
        if ($same && $progress['done'] > 0 && moved_to($change) == '') {
            return 'applied';
        }
        if ($progress['failed'] > 0 && !$same || $progress['done'] == 0) {
            return 'failed';
        }
    }
    if (seconds_since($change) < $GLOBALS['kinds_of_change'][$change['kind']]['longest_seconds']) {
        return 'waiting';
    }
    return $same ? 'applied' : 'late';
}

// What the change has come to, in a sentence. $stored_only: its values are not in force, because IPv6 is off.
function outcome_sentence($change, $outcome, $rows, $stored_only)
{
    if ($outcome == 'waiting') {
        return 'The appliance is changing its settings.';
    }
    if ($outcome == 'applied') {
        return $stored_only ? 'The settings are stored. They come into force when IPv6 is switched on.'
            : 'The settings are in force.';
    }
    if ($outcome == 'failed') {
        return 'The appliance did not apply the change.'
            . (all_as_wanted($rows) ? '' : ' It has the values that are marked below.');
    }
    if ($change['values']['mode'] == 'DHCP' && $rows['mode']['same']) {
        return 'No DHCP server has answered yet. The appliance goes on asking.';
    }
    return 'Not everything is as wanted, although the time for it is over.';
}

// The state of one value, as markup.
function row_state($row, $outcome)
{
    if ($row['same']) {
        return state('good', 'As wanted');
    }
    if ($outcome == 'waiting') {
        return state('wait', 'Not yet');
    }
    if ($outcome == 'applied') {
        return state('caution', 'Changed since');
    }
    $has_old_value = $outcome == 'failed' && $row['now'] != 'None' && $row['now'] != 'No';
    return state('bad', $has_old_value ? 'Old value' : 'Not as wanted');
}
