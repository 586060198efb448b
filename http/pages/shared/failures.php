<?php
// The failures that the module reports as warnings, collected so that a page can say them.

define('INTERNAL_ADDRESS', '0x00050040'); // the module's code

$failures = array(); // each an array of 'message', 'code', 'place', 'advice'
$failures_before_change = 0; // how many there were when begin_change() was called
$change_begun = false; // whether it was
$failures_before_reading = 0; // the same for begin_reading()

// The error handler: a failure of the module is a warning with a code; anything else is a fault of the pages.
function note_failure($level, $message, $file, $line)
{
    if (!(error_reporting() & $level)) {
        return true;
    }
    $report = '/^(?:\w+\(\)(?: \[[^\]]*\])?: )?(.*) \(code (0x[0-9A-F]{8}), (\S+:[0-9]+)\)$/s';
    if (preg_match($report, $message, $found)) {
        list(, $reported, $code, $place) = $found;
        $GLOBALS['failures'][] = array('message' => $reported, 'code' => $code, 'place' => $place,
            'advice' => advice_on($reported, $code));
    } else {
        error_log($message . ' in ' . $file . ' on line ' . $line);
        $GLOBALS['failures'][] = array('message' => 'This page has a fault', 'code' => '', 'place' => '',
            'advice' => 'What it shows may be incomplete. The web server\'s error log has the details.');
    }
    return true;
}

function failed()
{
    return count($GLOBALS['failures']) > 0;
}

// To be called just before the module is asked for settings; could_read() then says whether it had them all.
function begin_reading()
{
    $GLOBALS['failures_before_reading'] = count($GLOBALS['failures']);
}

function could_read()
{
    return count($GLOBALS['failures']) == $GLOBALS['failures_before_reading'];
}

// What the pages say of it: each cause once. What could not be read is one message, whatever was asked for in vain. $at_field:
// a field says already what has failed.
function failure_messages($at_field)
{
    $reading = array();
    $others = '';
    foreach ($GLOBALS['failures'] as $i => $failure) {
        if ($failure['place'] == '' || $GLOBALS['change_begun'] && $i >= $GLOBALS['failures_before_change']) {
            $others .= $at_field && $failure['place'] != '' ? '' : failure_message(array($failure));
        } else {
            $reading[] = $failure;
        }
    }
    return ($reading ? failure_message($reading) : '') . $others;
}

// To be called just before the module is asked to change something: what could not be read until then is shown
// as well, but is no failure of the change. The session's other requests need not wait for the appliance.
function begin_change()
{
    end_asking();
    leave_session();
    $GLOBALS['failures_before_change'] = count($GLOBALS['failures']);
    $GLOBALS['change_begun'] = true;
}

function change_failed()
{
    return count($GLOBALS['failures']) > $GLOBALS['failures_before_change'];
}

function failures_of_change()
{
    return $GLOBALS['change_begun'] ? array_slice($GLOBALS['failures'], $GLOBALS['failures_before_change']) : array();
}

// Whether the change was refused because an address belongs to the network inside the appliance.
function is_internal_address()
{
    foreach (failures_of_change() as $failure) {
        if ($failure['code'] == INTERNAL_ADDRESS) {
            return true;
        }
    }
    return false;
}

// What a person can do about it.
function advice_on($message, $code)
{
    if ($code == INTERNAL_ADDRESS) {
        return 'The address belongs to the network inside the appliance, which nothing outside of it may use.'
            . ' Choose an address of your own network.';
    }
    $advice = array(
        'Could not set library hostname' => 'The appliance refused the name and keeps the old one.',
        'Could not get IPv4 network information' => 'Address, netmask and gateway are not known.'
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
            . ' the page for IPv6, whether router advertisements are on.'
    );
    return isset($advice[$message]) ? $advice[$message] : 'The trace log under Diagnostics shows what was tried.';
}
