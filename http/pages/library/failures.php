<?php
// What the module reports, collected so that a page can say it.
if (!defined('LIBRARY')) exit;

$failures = array(); // each an array of 'message', 'code', 'place', 'advice'

// The error handler: a failure of the module is a warning with a code; anything else is a fault of the pages.
function note_failure($level, $message, $file, $line)
{
    if (!(error_reporting() & $level)) {
        return true;
    }
    $report = '/^(?:\w+\(\)(?: \[[^\]]*\])?: )?(.*) \(code (0x[0-9A-F]{8}), (http\/src\/network:[0-9]+)\)$/s';
    if (preg_match($report, $message, $found)) {
        $GLOBALS['failures'][] = array('message' => $found[1], 'code' => $found[2], 'place' => $found[3],
            'advice' => advice_on($found[1], $found[2]));
    } else {
        error_log($message . ' in ' . $file . ' on line ' . $line);
        $GLOBALS['failures'][] = array('message' => $message, 'code' => '', 'place' => '',
            'advice' => 'This is a fault of the page itself; the web server\'s error log has the details.');
    }
    return true;
}

// Whether the module reported this message since the page began.
function failed_with($message)
{
    foreach ($GLOBALS['failures'] as $failure) {
        if ($failure['message'] == $message) {
            return true;
        }
    }
    return false;
}

function failed()
{
    return count($GLOBALS['failures']) > 0;
}

// What a person can do about it.
function advice_on($message, $code)
{
    if ($code == '0x00050040') {
        return 'The address belongs to the network inside the appliance, which nothing outside of it may use.'
            . ' Choose an address of your own network.';
    }
    $advice = array(
        'Could not set library hostname' => 'The appliance refused the name and keeps the old one.',
        'Could not get IPv4 network information' => 'What is shown as 0.0.0.0 is not known.'
            . ' Check that a DHCP server answers, or set a static address.',
        'Failed to set DNS addresses.' => 'The appliance refused the servers and keeps the old ones.',
        'Failed to set port settings.' => 'The port keeps its old settings.',
        'Could not set SSL settings' => 'The web server stays in its old mode.',
        'Could not create trap registration' => 'The receiver was not added. There can be 20 at most.',
        'Failed to restart/test trap registration' =>
            'At least one receiver could not be sent to. Check the addresses and ports in the list.',
        'Could not set the community' => 'The agent keeps its old community.',
        'Could not restart SNMP' => 'The settings are stored, but the agent does not answer.',
        // The module's words for a question that has nothing to do with the host name.
        'Could not get hostname information' => 'The answer of a device script is missing: the host name, or, on'
            . ' the page for IPv6, whether stateless addresses are on.'
    );
    return isset($advice[$message]) ? $advice[$message] : 'The trace log under Diagnostics shows what was tried.';
}
