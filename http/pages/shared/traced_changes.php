<?php
// The kinds of change that go on after the answer, or that can cut the connection that asked for them, and what the trace
// log says about them.

// Kind => what people call it, the page it belongs to, seconds it usually takes (the module itself waits three before it
// changes IPv4), seconds after which it should have come to its end, and the names of its values.
$kinds_of_change = array(
    'ipv4' => array('name' => 'IPv4 settings', 'page' => 'ipv4.php', 'usual_seconds' => 6, 'longest_seconds' => 45,
        'labels' => array('mode' => 'Obtained by', 'ip' => 'Address', 'netmask' => 'Netmask', 'gateway' => 'Gateway')),
    'ipv6' => array('name' => 'IPv6 settings', 'page' => 'ipv6.php', 'usual_seconds' => 3, 'longest_seconds' => 15,
        'labels' => array('enabled' => 'IPv6', 'stateless' => 'Router advertisements', 'dhcp' => 'DHCP',
            'mode' => 'Static address', 'ip' => 'Address', 'prefix' => 'Prefix length', 'gateway' => 'Gateway')),
    'ssl' => array('name' => 'Web security', 'page' => 'security.php', 'usual_seconds' => 5, 'longest_seconds' => 30,
        'labels' => array('https' => 'HTTPS'))
);

// Settings => what the log says when a change of them begins, is done, and has failed: each says one of the two when it
// ends. The others have come to their end when the module's function returns.
$traced_changes = array(
    'ipv4' => array(
        'begun' => '/\]:Firing off the thread to Set Network settings:/',
        'done' => '/\]:Leaving set_network_ipv4:/',
        'failed' => '/\]:Could not set /'),
    'ipv6' => array(
        'begun' => '/\]:Firing off the thread to Set Network settings for IPv6:/',
        'done' => '/\]:Leaving set_network_ipv6:/',
        'failed' => '/\]:Failed to (en|dis)able static IPv6 /')
);

// All lines about changes of any kind; what reading the settings writes is left out.
define('TRACED_CHANGE', '/set_network|Could not set|Failed to (en|dis)able|setIPv6|IPv6 Static add|Network settings/');

function traced_since($from)
{
    $lines = trace_lines_since($from, TRACED_CHANGE);
    return $lines ? $lines : array();
}

// How changes of these settings have ended, as these lines of the trace log say: 'done' or 'failed', as the last of them
// did, when none goes on any longer; else ''.
function how_it_ended($kind, $lines)
{
    if (!isset($GLOBALS['traced_changes'][$kind])) {
        return '';
    }
    $patterns = $GLOBALS['traced_changes'][$kind];
    $begun = 0;
    $ended = 0;
    $last = '';
    foreach ($lines as $line) {
        $begun += preg_match($patterns['begun'], $line);
        foreach (array('done', 'failed') as $end) {
            if (preg_match($patterns[$end], $line)) {
                $ended++;
                $last = $end;
            }
        }
    }
    return $ended >= $begun ? $last : '';
}
