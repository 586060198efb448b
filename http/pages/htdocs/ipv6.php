<?php
require dirname(dirname(__FILE__)) . '/shared/page.php';
require dirname(dirname(__FILE__)) . '/shared/applying.php';
require dirname(dirname(__FILE__)) . '/shared/meanwhile.php';
require dirname(dirname(__FILE__)) . '/shared/review.php';

$session = signed_in();
$settings = get_network_configuration_ipv6($session);
$modes = read_modes();
$typed = array('static' => $settings->staticEnabled, 'prefix' => $settings->prefix,
    'ipStatic' => $settings->staticEnabled ? short_ipv6($settings->ipStatic) : '',
    'gateway' => $settings->staticEnabled ? short_ipv6($settings->gateway) : '');
$errors = array();
$change = is_post() ? posted('change') : '';
$seen = values_shown($settings, $modes);
$meanwhile = array();
if ($change != '') {
    list($errors, $meanwhile) = change_ipv6($session, $change, $seen, $settings);
    $modes = read_modes();
    $seen = values_shown($settings, $modes);
}
if ($change == 'static') {
    $typed = array('static' => posted('static') == '1', 'ipStatic' => posted('ipStatic'), 'prefix' => posted('prefix'),
        'gateway' => posted('gateway'));
}
show('ipv6', array('title' => 'IPv6', 'enabled' => is_ipv6_enabled(), 'modes' => $modes, 'typed' => $typed,
    'in_use' => is_ipv6_static_enabled(), 'addresses' => get_all_ipv6_addresses(), 'errors' => $errors,
    'meanwhile' => $meanwhile, 'change' => $change, 'seen' => $seen,
    'lead' => 'Whether the appliance uses IPv6, and where its addresses come from.'));

// What each form shows: the form's change => its values, under the names that its kind of change has.
function values_shown($settings, $modes)
{
    return array('enabled' => array('enabled' => is_ipv6_enabled() ? 'On' : 'Off'),
        'modes' => array('stateless' => $modes['stateless'] ? 'On' : 'Off', 'dhcp' => $modes['dhcp'] ? 'On' : 'Off'),
        'static' => $settings->staticEnabled ? array('mode' => 'On', 'ip' => short_ipv6($settings->ipStatic),
            'prefix' => (string) $settings->prefix, 'gateway' => short_ipv6($settings->gateway)) : array('mode' => 'Off'));
}

// Makes a change, unless something is wrong with it: array of errors and of what has changed meanwhile.
function change_ipv6($session, $change, $seen, $settings)
{
    $kinds = array('enabled' => 'ipv6-switch', 'modes' => 'ipv6-modes', 'static' => 'ipv6');
    if (!isset($kinds[$change])) {
        return array(array(), array());
    }
    $kind = $kinds[$change];
    $errors = $change == 'static' && posted('static') == '1'
        ? ipv6_errors(posted('ipStatic'), posted('prefix'), posted('gateway')) : array();
    $meanwhile = $errors ? array() : changed_meanwhile($seen[$change], $GLOBALS['kinds_of_change'][$kind]['labels']);
    if ($errors || $meanwhile || posted('reviewed') == 'back') {
        return array($errors, $meanwhile);
    }
    $values = values_typed($change);
    if (is_unchanged($values, $seen[$change])) {
        go_to('ipv6.php', UNCHANGED);
    }
    $before = settings_of($session, $kind);
    if ($change == 'static' && posted('static') == '1' && $before['enabled'] && posted('reviewed') != 'yes') {
        $warnings = address_warnings($before['static'] ? $before['ip'] : '', posted('ipStatic'), posted('gateway'),
            $before['static'] ? $before['gateway'] : '');
        if ($warnings) {
            show_review($warnings, $values, $seen['static']);
        }
    }
    if (chosen_seconds() == 0 && $change != 'static') {
        return array(switch_at_once($session, $change, $before), array());
    }
    return array(begin_ipv6($session, $kind, $values, $before), array());
}

// What is wanted, as it is shown.
function values_typed($change)
{
    if ($change == 'static') {
        return posted('static') != '1' ? array('mode' => 'Off') : array('mode' => 'On', 'ip' => posted('ipStatic'),
            'prefix' => posted('prefix'), 'gateway' => posted('gateway'));
    }
    return $change == 'enabled' ? array('enabled' => posted('enabled') == '1' ? 'On' : 'Off')
        : array('stateless' => posted('stateless') == '1' ? 'On' : 'Off', 'dhcp' => posted('dhcp') == '1' ? 'On' : 'Off');
}

// What is wanted, as put_back() takes it: all settings of IPv6, of which the form changes some.
function wanted_ipv6($kind, $before)
{
    $wanted = $before;
    if ($kind == 'ipv6-switch') {
        $wanted['enabled'] = posted('enabled') == '1';
    } elseif ($kind == 'ipv6-modes') {
        $wanted['stateless'] = posted('stateless') == '1';
        $wanted['dhcp'] = posted('dhcp') == '1';
    } elseif (posted('static') == '1') {
        $wanted['static'] = true;
        $wanted['ip'] = posted('ipStatic');
        $wanted['prefix'] = posted('prefix');
        $wanted['gateway'] = posted('gateway');
    } else {
        $wanted['static'] = false;
    }
    return $wanted;
}

function begin_ipv6($session, $kind, $values, $before)
{
    // What is only stored locks nobody out.
    $seconds = $kind == 'ipv6' && !$before['enabled'] ? 0 : chosen_seconds();
    $to = $kind == 'ipv6' && posted('static') == '1' ? posted('ipStatic') : '';
    $trial = new_trial($session, $kind, $values, $before, $before['static'] ? $before['ip'] : '', $to, $seconds);
    $ipv4 = get_network_configuration_ipv4($session);
    $trial['others'] = is_host_address($ipv4->ip) ? array($ipv4->ip) : array();
    // Over IPv6 the way leads to the other family's address, which the appliance has already.
    $trial['goes_alone'] = moved_to($trial) == '';
    $errors = start_change($session, $trial, wanted_ipv6($kind, $before));
    return $errors ? array('static' => $errors[0]) : array();
}

// Without a trial. Each mode by itself, so that one that fails does not keep the other from being set.
function switch_at_once($session, $change, $before)
{
    if (trial_in_the_way()) {
        return array('static' => 'Another change of addressing is on trial: keep or undo it first. Yours was not applied.');
    }
    begin_change();
    put_back($session, 'ipv6', wanted_ipv6($change == 'enabled' ? 'ipv6-switch' : 'ipv6-modes', $before));
    if (!change_failed()) {
        go_to('ipv6.php', $change == 'modes' ? 'The sources of addresses are set. Addresses appear or go within some seconds.'
            : (posted('enabled') == '1' ? 'IPv6 is on. Addresses appear within some seconds.' : 'IPv6 is off.'));
    }
    return array();
}

function show_review($warnings, $values, $now)
{
    $rows = array();
    foreach ($values as $name => $value) {
        $rows[] = array('label' => $GLOBALS['kinds_of_change']['ipv6']['labels'][$name],
            'now' => isset($now[$name]) ? $now[$name] : 'None', 'wanted' => $value);
    }
    $typed = array();
    foreach (array('change', 'seen', 'static', 'ipStatic', 'prefix', 'gateway', 'trial') as $name) {
        $typed[$name] = text_of($_POST, $name);
    }
    show('review', array('title' => 'Before it is applied', 'part_of' => 'ipv6.php', 'page' => 'ipv6.php',
        'warnings' => $warnings, 'rows' => $rows, 'typed' => $typed, 'lead' => 'Nothing has been changed yet.'));
}

function read_modes()
{
    return array('stateless' => is_stateless_enabled(), 'dhcp' => is_ipv6_dhcp_enabled());
}
