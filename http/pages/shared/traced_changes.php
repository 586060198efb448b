<?php
// What the trace log says about a change that goes on after the answer.

// Kind of change => what the log says when one of this kind begins, is done, and has failed: each says one of the two
// when it ends.
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
