<?php
// What a change that goes on after the answer has come to: the values that are wanted beside those in force, and what
// the trace log says.

// The values as they are now, under the names that a change of this kind has.
function values_now($session, $kind)
{
    if ($kind == 'ssl') {
        $now = get_ssl_settings($session);
        return array('https' => $now->isEnabled ? 'On' : 'Off');
    }
    if ($kind == 'ipv4') {
        $now = get_network_configuration_ipv4($session);
        return array('mode' => $now->dhcpEnabled ? 'DHCP' : 'Static', 'ip' => $now->ip, 'netmask' => $now->netmask,
            'gateway' => $now->gateway);
    }
    $now = get_network_configuration_ipv6($session);
    return array('enabled' => is_ipv6_enabled() ? 'On' : 'Off', 'stateless' => is_stateless_enabled() ? 'On' : 'Off',
        'dhcp' => is_ipv6_dhcp_enabled() ? 'On' : 'Off', 'mode' => $now->staticEnabled ? 'On' : 'Off', 'ip' => $now->ipStatic,
        'prefix' => $now->prefix, 'gateway' => $now->gateway, 'addresses' => get_all_ipv6_addresses());
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
    if ($change['kind'] == 'ipv6' && $now['enabled'] == 'On' && $change['to'] != '') {
        $used = is_among($change['to'], $now['addresses']);
        $rows['used'] = array('label' => 'In use', 'wanted' => 'Yes', 'now' => $used ? 'Yes' : 'No', 'same' => $used);
    }
    return $rows;
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

// What the record comes to, beside the values of now: its state; 'late' when a change without a trial should have come to its
// end, and 'missing' when one on trial is in force but not all is as wanted.
function outcome_of($trial, $rows)
{
    $longest = $GLOBALS['kinds_of_change'][$trial['kind']]['longest_seconds'];
    if ($trial['state'] == 'applying' && $trial['seconds'] == 0 && seconds_since($trial) >= $longest) {
        return 'late';
    }
    if ($trial['state'] == 'kept' && $trial['why'] == 'no trial' && !$trial['as_wanted'] && !all_as_wanted($rows)) {
        return seconds_since($trial) < $longest ? 'applying' : 'late';
    }
    return $trial['state'] == 'trial' && !all_as_wanted($rows) ? 'missing' : $trial['state'];
}

// The page's heading.
function title_of_outcome($trial, $outcome)
{
    $titles = array('applying' => 'Applying', 'trial' => 'On trial', 'missing' => 'On trial',
        'kept' => $trial['why'] == 'no trial' ? 'Applied' : 'Kept', 'refused' => 'Refused by the appliance',
        'undoing' => 'Undoing', 'undone' => $trial['why'] == 'start' ? 'Undone after a start' : 'Undone',
        'late' => 'Not applied');
    return $outcome == 'undone' && $trial['undo_failed'] ? 'Not undone' : $titles[$outcome];
}

function kind_of_outcome($outcome)
{
    $kinds = array('applying' => 'wait', 'trial' => 'wait', 'missing' => 'caution', 'kept' => 'good', 'refused' => 'bad',
        'undoing' => 'wait', 'undone' => 'caution', 'late' => 'caution');
    return $kinds[$outcome];
}

// What the change has come to, in a sentence whose first words say which it is. $stored_only: its values are not in force,
// because IPv6 is off.
function outcome_sentence($trial, $outcome, $rows, $stored_only)
{
    $by = $trial['by'] == '' ? '' : ' by ' . $trial['by'];
    if ($outcome == 'applying') {
        return 'The appliance is changing its settings.';
    }
    if ($outcome == 'trial') {
        return 'The new settings are in force and on trial.';
    }
    if ($outcome == 'missing' || $outcome == 'late') {
        $missing = isset($trial['values']['mode']) && $trial['values']['mode'] == 'DHCP' && $rows['mode']['same']
            ? 'No DHCP server has answered yet. The appliance goes on asking.'
            : 'Not everything is as wanted' . ($outcome == 'late' ? ', although the time for it is over.' : ' yet.');
        return $missing;
    }
    if ($outcome == 'kept') {
        if ($trial['why'] == 'no trial') {
            return $stored_only ? 'The settings are stored. They come into force when IPv6 is switched on.'
                : 'The settings are in force.';
        }
        return "Kept$by: " . ($trial['why'] == 'asked' ? 'as asked for.' : 'reached under the new settings.');
    }
    if ($outcome == 'refused') {
        return 'Refused by the appliance' . ($trial['why'] == '' ? '.' : ': ' . $trial['why'] . '.')
            . (all_as_wanted($rows) ? '' : ' It has the values in "Now" below.');
    }
    return undo_sentence($trial, $outcome);
}

function undo_sentence($trial, $outcome)
{
    $when = ' at ' . gmdate('H:i:s', $trial['settled']) . ' UTC';
    if ($outcome == 'undoing') {
        return 'The settings of before are being put back, because ' . reason_of_undo($trial) . '.';
    }
    if ($trial['undo_failed']) {
        return 'The settings of before could not be put back' . ($trial['left'] == '' ? '' : '; that is tried again every minute')
            . ': look at the values below, and at the trace log under Diagnostics.';
    }
    return $trial['why'] == 'start' ? 'Undone after a start' . $when . ': ' . reason_of_undo($trial) . '.'
        : 'Undone' . $when . ', because ' . reason_of_undo($trial) . '.';
}

function reason_of_undo($trial)
{
    if ($trial['why'] == 'time') {
        return 'nobody was back under the new settings within ' . $trial['seconds'] . ' seconds';
    }
    if ($trial['why'] == 'refused') {
        return 'the appliance refused a part of the new ones';
    }
    return $trial['why'] == 'start' ? 'the appliance started anew during the trial' : $trial['by'] . ' asked for it';
}

// The state of one value, as markup. What is undone is the value of before, also where that is what was wanted.
function row_state($row, $outcome, $undo_failed)
{
    if ($outcome == 'undone') {
        return !$undo_failed ? state('off', 'As before') : ($row['same'] ? state('caution', 'As wanted')
            : state('off', 'Not as wanted'));
    }
    if ($outcome == 'undoing') {
        return state('off', 'Going back');
    }
    if ($row['same']) {
        return state('good', 'As wanted');
    }
    if ($outcome == 'applying' || $outcome == 'trial' || $outcome == 'missing') {
        return state('wait', 'Not yet');
    }
    if ($outcome == 'kept') {
        return state('caution', 'Changed since');
    }
    $has_old_value = $outcome == 'refused' && $row['now'] != 'None' && $row['now'] != 'No';
    return state('bad', $has_old_value ? 'Old value' : 'Not as wanted');
}

// How far the change is: each of the steps with the kind of its state. Without a trial nobody waits for who reaches it.
function steps_of($trial, $outcome)
{
    if ($trial['state'] == 'undoing' || $trial['state'] == 'undone') {
        $undone = $trial['state'] == 'undoing' ? 'wait' : ($trial['undo_failed'] ? 'bad' : 'caution');
        return array('Asked' => 'good', 'Set' => $trial['in_force'] ? 'good' : 'off', 'Undone' => $undone);
    }
    $kinds = array('applying' => 'wait', 'refused' => 'bad', 'late' => 'caution');
    $steps = array('Asked' => 'good', 'Set' => isset($kinds[$outcome]) ? $kinds[$outcome] : 'good');
    if ($trial['seconds'] > 0) {
        $steps['Reached'] = $trial['state'] == 'kept' ? 'good' : ($trial['state'] == 'trial' ? 'wait' : 'off');
        $steps['Kept'] = $trial['state'] == 'kept' ? 'good' : 'off';
    }
    return $steps;
}

// What the settings of before do not come back for: "... unless".
function unless_what($session, $trial, $needs_wish)
{
    if (!may_change($session)) {
        return $trial['user'] . ' is back';
    }
    return !$needs_wish ? 'you are back' : 'you press Keep or sign in '
        . ($trial['to'] == '' ? 'under the new settings' : 'at ' . origin_of($trial['to'], '') . '/');
}

// The network that the visitor's computer has to be in to reach a static address, when it is in another one; else ''.
function network_to_be_in($trial)
{
    $client = ipv4_bytes(client_of_request());
    $ip = ipv4_bytes($trial['to']);
    $mask = $ip && isset($trial['values']['netmask']) ? ipv4_bytes($trial['values']['netmask']) : false;
    if (!$client || !$mask || same_network($client, $ip, netmask_length($mask))) {
        return '';
    }
    $network = array();
    foreach ($ip as $i => $byte) {
        $network[] = $byte & $mask[$i];
    }
    return implode('.', $network) . '/' . netmask_length($mask);
}

// Whether the name servers of before came from a DHCP server, and nobody has set any since.
function lost_name_servers($session, $trial)
{
    if ($trial['kind'] != 'ipv4' || empty($trial['before']['dhcp']) || $trial['values']['mode'] == 'DHCP') {
        return false;
    }
    $servers = get_network_dns($session);
    return $servers->dnsPrimary == '' && $servers->dnsSecondary == '';
}

// Where to go on from the end of a change, as markup.
function links_back($trial, $kind, $outcome)
{
    $is_over = $outcome == 'refused' || $outcome == 'late';
    $again = may_change($GLOBALS['session']) && ($outcome == 'undone' || $is_over)
        && ($trial['kind'] == 'ipv4' || $trial['kind'] == 'ipv6') ? $kind['page'] . '?again=' . $trial['id'] : '';
    $html = $is_over && $again != '' ? '' : '<a class="button" href="' . h($kind['page']) . '">Back to the settings</a>';
    return $again == '' ? $html : $html . ' <a class="button" href="' . h($again) . '">Back, to try again</a>';
}

// The values of an undone or refused change that the visitor wants to correct: as in its record; or false.
function values_again($kind)
{
    $trial = text_of($_GET, 'again') == '' ? false : read_trial();
    return $trial && $trial['id'] == text_of($_GET, 'again') && $trial['kind'] == $kind && is_settled($trial)
        ? $trial['values'] : false;
}

// What the next page says once to everybody who may change settings: array of the kind of message and its sentence; or false.
function news_of_trial($session)
{
    $trial = read_trial();
    if (!$trial || !is_settled($trial) || !may_change($session) || $trial['seconds'] == 0
        || in_array($session->user, $trial['told']) || seconds_since($trial) > 86400) {
        return false;
    }
    $told = $trial['told'];
    $told[] = $session->user;
    if (!change_trial($trial['id'], array($trial['state']), array('told' => $told), array('told' => $trial['told']))) {
        return false;
    }
    $kind = $GLOBALS['kinds_of_change'][$trial['kind']];
    return array('kind' => kind_of_outcome($trial['state']), 'sentence' => $kind['name'] . ': '
        . outcome_sentence($trial, $trial['state'], array(), false));
}
