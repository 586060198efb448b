<?php
// Changes that go on after the answer: what was wanted, until when it can be there, and how far it is.

// Kind of change => page it belongs to, seconds it usually takes, seconds after which it has failed, the names of its
// values, and what the trace log says when one of this kind begins, is done, and has failed: each says one of the two
// when it ends. The module itself waits three seconds before it changes IPv4.
$kinds = array(
    'ipv4' => array('page' => 'ipv4.php', 'expected' => 6, 'limit' => 45,
        'labels' => array('mode' => 'Obtained by', 'ip' => 'Address', 'netmask' => 'Netmask', 'gateway' => 'Gateway'),
        'begun' => '/\]:Firing off the thread to Set Network settings:/', 'done' => '/\]:Leaving set_network_ipv4:/',
        'failed' => '/\]:Could not set /'),
    'ipv6' => array('page' => 'ipv6.php', 'expected' => 3, 'limit' => 15,
        'labels' => array('mode' => 'Static address', 'ip' => 'Address', 'prefix' => 'Prefix length', 'gateway' => 'Gateway'),
        'begun' => '/\]:Firing off the thread to Set Network settings for IPv6:/', 'done' => '/\]:Leaving set_network_ipv6:/',
        'failed' => '/\]:Failed to (en|dis)able static IPv6 /')
);

// $values: name => wanted text. The appliance moves from the address $from to $to; '' when it is not known. Where the
// change before may still be going on, its lines of the trace log are this one's too.
function new_change($session, $kind, $values, $from, $to)
{
    $before = kept_applying($session);
    $may_go_on = $before && $before['kind'] == $kind && $before['outcome'] == 'waiting'
        && !has_ended(progress_of($before, lines_about($before)));
    $trace = $may_go_on ? $before['trace'] : trace_size();
    return array('kind' => $kind, 'values' => $values, 'from' => $from, 'to' => $to, 'began' => time(), 'trace' => $trace,
        'outcome' => 'waiting', 'lines' => array());
}

function follow_change($session, $change)
{
    if (!keep_applying($session, $change)) {
        go_to($GLOBALS['kinds'][$change['kind']]['page'], 'The change has begun. How far it is cannot be shown, because '
            . PRIVATE_FOLDER . ' cannot be written.');
    }
    go_to('applying.php');
}

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

// Each wanted value beside the one in force: arrays of label, wanted, now and whether they are the same.
function compare_values($change, $now)
{
    $rows = array();
    foreach ($change['values'] as $name => $wanted) {
        $rows[] = array($GLOBALS['kinds'][$change['kind']]['labels'][$name], $wanted, present_value($now[$name]),
            same_value($wanted, $now[$name]));
    }
    if ($change['kind'] == 'ipv4' && $change['values']['mode'] == 'DHCP') {
        $address = present_value($now['ip']);
        $rows[] = array('Address', 'From the DHCP server', $address, $address != 'None' && $now['mode'] == 'DHCP');
    }
    if ($change['kind'] == 'ipv6' && $change['values']['mode'] == 'On' && $now['enabled']) {
        $used = is_among($change['to'], $now['addresses']);
        $rows[] = array('In use', 'Yes', $used ? 'Yes' : 'No', $used);
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

// Zeros are how the module says that there is none.
function present_value($value)
{
    $short = short_ipv6($value);
    return $short == '::' || $short == '0.0.0.0' || $short == '' ? 'None' : $short;
}

function all_as_wanted($rows)
{
    foreach ($rows as $row) {
        if (!$row[3]) {
            return false;
        }
    }
    return true;
}

// What the change has come to: 'applied' or 'failed', which stays so whatever is changed later; else 'waiting', or 'late' when
// its time is over, which may still become one of the others. $lines: what the trace log says about it.
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
    if (seconds_since($change) < $GLOBALS['kinds'][$change['kind']]['limit']) {
        return 'waiting';
    }
    return $same ? 'applied' : 'late';
}

function seconds_since($change)
{
    return max(0, time() - $change['began']);
}

// What the change has come to, in a sentence.
function outcome_sentence($change, $outcome, $rows, $stored_only)
{
    if ($outcome == 'waiting') {
        return 'The appliance is changing its settings.';
    }
    if ($outcome == 'applied') {
        return $stored_only ? 'The settings are stored. They come into force when IPv6 is switched on.' : 'The settings are in force.';
    }
    if ($outcome == 'failed') {
        return 'The appliance did not apply the change.' . (all_as_wanted($rows) ? '' : ' It has the values that are marked below.');
    }
    if ($change['values']['mode'] == 'DHCP' && $rows[0][3]) {
        return 'No DHCP server has answered yet. The appliance goes on asking.';
    }
    return 'Not everything is as wanted, although the time for it is over.';
}

// How many changes of the kind have begun, are done and have failed, as these lines of the trace log say.
function progress_of($change, $lines)
{
    $progress = array();
    foreach (array('begun', 'done', 'failed') as $step) {
        $progress[$step] = 0;
        foreach ($lines as $line) {
            $progress[$step] += preg_match($GLOBALS['kinds'][$change['kind']][$step], $line);
        }
    }
    return $progress;
}

function has_ended($progress)
{
    $ended = $progress['done'] + $progress['failed'];
    return $ended > 0 && $ended >= $progress['begun'];
}

// The state of one value, as markup.
function row_state($row, $outcome)
{
    if ($row[3]) {
        return state('good', 'As wanted');
    }
    if ($outcome == 'waiting') {
        return state('wait', 'Not yet');
    }
    if ($outcome == 'applied') {
        return state('caution', 'Changed since');
    }
    return state('bad', $outcome == 'failed' && $row[2] != 'None' && $row[2] != 'No' ? 'Old value' : 'Not as wanted');
}

// What the trace log says about changes since this one began; what reading the settings writes is left out.
function lines_about($change)
{
    if ($change['outcome'] != 'waiting') {
        return $change['lines'];
    }
    $lines = trace_lines_since($change['trace'], '/set_network|Could not set|Failed to (en|dis)able|setIPv6|IPv6 Static add|Network settings/');
    return $lines ? $lines : array();
}

// Scheme and address under which the browser finds the appliance after the change, when it is using the address
// that goes away; else ''.
function moved_to($change)
{
    if ($change['to'] == '' || $change['from'] == '' || same_value($change['from'], $change['to'])
        || !preg_match('/^\[?([^\]]*?)\]?(:[0-9]+)?$/D', host_of_request(), $found)) {
        return '';
    }
    $here = $found[1];
    $port = isset($found[2]) ? $found[2] : '';
    // A name stands for the address that this request came to; under a port of its own the pages are published by another
    // machine.
    if (!is_address($here)) {
        $here = $port == '' && $here != 'localhost' ? plain_address(text_of($_SERVER, 'SERVER_ADDR')) : '';
    }
    return same_value($here, $change['from']) ? origin_of($change['to'], $port) : '';
}

function origin_of($address, $port)
{
    return (is_https() ? 'https://' : 'http://') . (strpos($address, ':') === false ? $address : '[' . $address . ']')
        . $port;
}
