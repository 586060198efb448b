<?php
// Changes that go on after the answer: beginning one, keeping it for the page that follows it, and where the appliance is
// afterwards. outcome.php says what one has come to.

$shared = dirname(__FILE__);
require $shared . '/trace_log.php';
require $shared . '/traced_changes.php';
require $shared . '/outcome.php';

// Kind of change => page it belongs to, seconds it usually takes (the module itself waits three before it changes IPv4),
// seconds after which it should have come to its end, and the names of its values.
$kinds_of_change = array(
    'ipv4' => array('page' => 'ipv4.php', 'usual_seconds' => 6, 'longest_seconds' => 45,
        'labels' => array('mode' => 'Obtained by', 'ip' => 'Address', 'netmask' => 'Netmask', 'gateway' => 'Gateway')),
    'ipv6' => array('page' => 'ipv6.php', 'usual_seconds' => 3, 'longest_seconds' => 15,
        'labels' => array('mode' => 'Static address', 'ip' => 'Address', 'prefix' => 'Prefix length',
            'gateway' => 'Gateway'))
);

// To be called before the module is asked for the change. $values: name => wanted text. The appliance moves from the
// address $from to $to; '' when it is not known. Where the change before may still be going on, its lines of the trace
// log are this one's too.
function new_change($session, $kind, $values, $from, $to)
{
    $before = kept_change($session);
    $may_go_on = $before && $before['kind'] == $kind && $before['outcome'] == 'waiting'
        && !has_ended(progress_of($before, lines_about($before)));
    $trace = $may_go_on ? $before['trace'] : trace_size();
    return array('kind' => $kind, 'values' => $values, 'from' => $from, 'to' => $to, 'began' => time(), 'trace' => $trace,
        'outcome' => 'waiting', 'lines' => array());
}

// Goes to the page that shows how far the change is.
function follow_change($session, $change)
{
    if (!keep_change($session, $change)) {
        go_to($GLOBALS['kinds_of_change'][$change['kind']]['page'], 'The change has begun. How far it is cannot be shown,'
            . ' because ' . PRIVATE_FOLDER . ' cannot be written.');
    }
    go_to('applying.php');
}

// A change is kept for its user outside of the browser's session: with the appliance's address that changes too.
function file_of_change($session)
{
    return PRIVATE_FOLDER . '/applying.' . md5($session->user);
}

function keep_change($session, $change)
{
    return replace_file(file_of_change($session), serialize($change));
}

// The user's last change as it was kept, or false.
function kept_change($session)
{
    $path = file_of_change($session);
    $change = is_readable($path) ? unserialize(implode('', file($path))) : false;
    return isset($change['kind'], $change['outcome'], $change['lines']) ? $change : false;
}

// Keeps what a change has come to, and what the trace log says about it, unless the user has begun another one meanwhile.
function keep_outcome($session, $change, $outcome, $lines)
{
    $kept = kept_change($session);
    if ($kept && $kept['began'] == $change['began'] && $kept['values'] == $change['values']) {
        $change['outcome'] = $outcome;
        $change['lines'] = $lines;
        keep_change($session, $change);
    }
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
