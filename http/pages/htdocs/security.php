<?php
require dirname(dirname(__FILE__)) . '/shared/page.php';
require dirname(dirname(__FILE__)) . '/shared/applying.php';
require dirname(dirname(__FILE__)) . '/shared/meanwhile.php';

// Also where the appliance's ports are published under other numbers, HTTPS is that far above HTTP.
define('PORT_DISTANCE', 443 - 80);

$session = signed_in();
ask_device();
$settings = get_ssl_settings($session);
$is_known = could_read() && !services_unreadable();
$errors = array();
$meanwhile = array();
$seen = $is_known ? array('https' => $settings->isEnabled ? 'On' : 'Off') : array();
if (is_post()) {
    $wanted = posted('https');
    $meanwhile = $is_known ? changed_meanwhile($seen, $kinds_of_change['ssl']['labels']) : array();
    if ($wanted != '0' && $wanted != '1') {
        $errors['https'] = 'Choose how these pages are served.';
    } elseif (!$meanwhile && $is_known && ($wanted == '1') == $settings->isEnabled) {
        go_to('security.php', 'HTTPS is ' . ($settings->isEnabled ? 'on' : 'off') . ' already; nothing was changed.');
    } elseif (!$meanwhile) {
        $errors = $is_known ? switch_mode($session, $wanted == '1') : array('https' => UNREADABLE);
    }
}
show('security', array('title' => 'Web security', 'settings' => $settings, 'is_known' => $is_known, 'errors' => $errors,
    'meanwhile' => $meanwhile, 'seen' => $seen,
    'lead' => 'Whether your password and all settings travel encrypted.', 'address' => address_after(!$settings->isEnabled)));

// Begins the trial, or switches at once; returns what was wrong.
function switch_mode($session, $on)
{
    $seconds = chosen_seconds();
    $trial = new_trial($session, 'ssl', array('https' => $on ? 'On' : 'Off'), array('https' => !$on), '', '', $seconds);
    if ($seconds == 0 && trial_in_the_way()) {
        return array('https' => 'Another change is on trial: keep or undo it first. Yours was not applied.');
    }
    $trial['wanted'] = array('https' => $on);
    name_user_to_services($session);
    begin_change();
    if ($seconds > 0) {
        $errors = start_trial($trial);
        if ($errors) {
            return array('https' => $errors[0]);
        }
    }
    set_ssl_settings($session, $on);
    if ($seconds == 0) {
        audit_change($session, 'ssl', 'Switch', $on ? 'HTTPS on' : 'HTTPS off', $GLOBALS['kinds_of_change']['ssl']['labels'],
            array('https' => $on ? 'Off' : 'On'), $trial['values']);
    }
    if (change_failed()) {
        $failure = $GLOBALS['failures'][count($GLOBALS['failures']) - 1];
        drop_trial($trial, $failure['message']);
        return array();
    }
    if ($seconds == 0) {
        forget_session();
        end_sessions_of_mode(!$on);
    } else {
        ended_at_once($trial);
    }
    show_restart($on, $trial, $seconds);
}

// The web server restarts now: this answer is the last one in the old mode.
function show_restart($on, $trial, $seconds)
{
    $address = str_replace('security.php', $seconds > 0 ? 'applying.php' : 'security.php', address_after($on));
    // Before it goes on to HTTPS, the certificate is to be seen.
    $refresh = $on ? array('seconds' => $seconds + 8, 'address' => 'applying.php') : array('seconds' => 5, 'address' => $address);
    $values = array('title' => 'Web security', 'on' => $on, 'address' => $address, 'certificate' => certificate_facts(),
        'seconds' => $seconds == 0 ? 0 : max(1, seconds_left($trial)), 'restarts' => true);
    if (!$on || $seconds > 0) {
        $values['refresh'] = $refresh;
    }
    show('restarting', $values);
}

// What the certificate says of itself: label => text; empty when it cannot be read.
function certificate_facts()
{
    $lines = array();
    $status = 1;
    exec('/bin/sh ' . APPLIANCE_FOLDER . '/AppManager/bin/certificateFacts.sh', $lines, $status);
    $facts = array();
    foreach ($status == 0 ? $lines : array() as $line) {
        $parts = explode('=', $line, 2);
        if (count($parts) == 2) {
            $facts[$parts[0]] = $parts[1];
        }
    }
    return $facts;
}

// Where this page is in the other mode. It is not left to the web server to send on to HTTPS: a connection that the browser has
// opened in advance may still lead to the one of before.
function address_after($on)
{
    if (!preg_match('/^(.*?)(:([0-9]+))?$/D', host_of_request(), $found) || $found[1] == '') {
        return 'security.php';
    }
    $port = isset($found[3]) ? $found[3] : '';
    if ($port != '' && is_https() != $on) {
        $port += $on ? PORT_DISTANCE : -PORT_DISTANCE;
    }
    return ($on ? 'https://' : 'http://') . $found[1] . ($port == '' ? '' : ':' . $port) . '/security.php';
}
