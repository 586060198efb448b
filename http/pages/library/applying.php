<?php
// Changes that go on after the answer: what was wanted, until when it can be there, and how far it is.
if (!defined('LIBRARY')) exit;

// Kind of change => page it belongs to, seconds it usually takes, seconds after which it has failed, and the names
// of its values. The module itself waits three seconds before it changes IPv4.
$kinds = array(
    'ipv4' => array('page' => 'ipv4.php', 'expected' => 6, 'limit' => 45, 'labels' => array('mode' => 'Obtained by',
        'ip' => 'Address', 'netmask' => 'Netmask', 'gateway' => 'Gateway')),
    'ipv6' => array('page' => 'ipv6.php', 'expected' => 2, 'limit' => 15, 'labels' => array('mode' => 'Static address',
        'ip' => 'Address', 'prefix' => 'Prefix length', 'gateway' => 'Gateway'))
);

// $values: name => wanted text. The appliance moves from the address $from to $to; '' when it is not known.
function new_change($kind, $values, $from, $to)
{
    return array('kind' => $kind, 'values' => $values, 'from' => $from, 'to' => $to, 'began' => time(),
        'trace' => trace_size(), 'applied' => false);
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
        'gateway' => $now->gateway);
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
    return $rows;
}

// Zeros are how the module says that there is none.
function present_value($value)
{
    $short = short_ipv6($value);
    return $short == '::' || $short == '0.0.0.0' || $short == '' ? 'None' : $short;
}

function same_value($one, $other)
{
    $bytes = ipv6_bytes($one);
    return $bytes ? $bytes == ipv6_bytes($other) : $one == $other;
}

// 'applied', 'failed' or 'waiting'. What was applied once stays so, whatever is changed later.
function outcome_of($change, $rows, $seconds)
{
    if ($change['applied']) {
        return 'applied';
    }
    $same = true;
    foreach ($rows as $row) {
        $same = $same && $row[3];
    }
    if ($same) {
        return 'applied';
    }
    return is_over($change, $seconds) || gave_up($change) ? 'failed' : 'waiting';
}

function is_over($change, $seconds)
{
    return $seconds >= $GLOBALS['kinds'][$change['kind']]['limit'];
}

// Whether the appliance has written down that a change failed. It may have been another one that went on at the same
// time: until the time is over, this one can still be applied.
function gave_up($change)
{
    foreach (lines_about($change) as $line) {
        if (preg_match('/\]:(Could not set |Failed to (en|dis)able static )/', $line)) {
            return true;
        }
    }
    return false;
}

// What the trace log says about changes since this one began; what reading the settings writes is left out.
function lines_about($change)
{
    $about = array();
    $lines = trace_lines('', $change['trace']);
    foreach ($lines ? $lines : array() as $line) {
        if (preg_match('/set_network|Could not|Failed|setIPv6|IPv6 Static add|Network settings/', $line)) {
            $about[] = $line;
        }
    }
    return $about;
}

// Scheme and address under which the browser finds the appliance after the change, when it is using the address
// that goes away; else ''.
function moved_to($change)
{
    if ($change['to'] == '' || !preg_match('/^\[?([^\]]*?)\]?(:[0-9]+)?$/D', host_of_request(), $found)) {
        return '';
    }
    if (!is_address($found[1]) || !same_value($found[1], $change['from']) || same_value($change['from'], $change['to'])) {
        return '';
    }
    return origin_of($change['to'], isset($found[2]) ? $found[2] : '');
}

function origin_of($address, $port)
{
    return (is_https() ? 'https://' : 'http://') . (strpos($address, ':') === false ? $address : '[' . $address . ']')
        . $port;
}
