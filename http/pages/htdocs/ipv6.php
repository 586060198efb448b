<?php
require dirname(dirname(__FILE__)) . '/shared/page.php';
require dirname(dirname(__FILE__)) . '/shared/applying.php';
require dirname(dirname(__FILE__)) . '/shared/meanwhile.php';
require dirname(dirname(__FILE__)) . '/shared/review.php';

$session = signed_in();
if (is_background() && has_facts()) {
    // What the page fetches again and again: without asking the module, whose trace log it would fill.
    ask_device();
    show('ipv6_now', array('title' => 'IPv6', 'enabled' => is_readable(IPV6_SWITCH)));
}
ask_device();
$unknown = array();
$settings = get_network_configuration_ipv6($session);
$unknown['static'] = !could_read();
begin_reading();
$modes = read_modes();
$unknown['stateless'] = !could_read();
$is_known = !$unknown['static'] && !$unknown['stateless'];
$seen = values_shown($settings, $modes, $unknown);
$is_sent = is_post() && posted('change') == 'ipv6';
$errors = array();
$meanwhile = array();
if ($is_sent) {
    end_asking(); // what is asked of the network before a change may take longer than a page waits
    list($errors, $meanwhile) = $is_known ? change_ipv6($session, $seen) : array(array('enabled' => UNREADABLE), array());
    ask_device();
    begin_reading();
    $modes = read_modes(); // some may be set, and others not
    $unknown['stateless'] = !could_read();
    $seen = values_shown($settings, $modes, $unknown);
}
$again = is_post() ? false : values_again('ipv6');
$typed = ($is_sent ? values_wanted($seen) : ($again ? $again : array())) + $seen
    + ($unknown['static'] ? array('ip' => null, 'prefix' => null, 'gateway' => null)
    : array('ip' => '', 'prefix' => $settings->prefix, 'gateway' => ''));
$in_use = $unknown['static'] ? '' : is_ipv6_static_enabled();
begin_reading();
$addresses = get_all_ipv6_addresses();
$unknown['addresses'] = !could_read();
show('ipv6', array('title' => 'IPv6', 'enabled' => $seen['enabled'] == 'On', 'modes' => $modes, 'typed' => $typed,
    'in_use' => $in_use, 'addresses' => $addresses, 'unknown' => $unknown, 'errors' => $errors,
    'meanwhile' => $meanwhile, 'seen' => $is_known ? $seen : array(), 'other_way' => other_way($session),
    'lead' => 'Whether the appliance uses IPv6, and where its addresses come from.'));

// What the form shows, under the names that the change has; null for what is not known.
function values_shown($settings, $modes, $unknown)
{
    $values = array('enabled' => is_ipv6_enabled() ? 'On' : 'Off',
        'stateless' => on_or_off($unknown['stateless'] ? null : $modes['stateless']),
        'dhcp' => on_or_off($modes['dhcp']),
        'mode' => on_or_off($unknown['static'] ? null : (bool) $settings->staticEnabled));
    return $unknown['static'] || !$settings->staticEnabled ? $values : $values + array('ip' => short_ipv6($settings->ipStatic),
        'prefix' => (string) $settings->prefix, 'gateway' => short_ipv6($settings->gateway));
}

// Whether such a value is on; null when it is not known.
function is_on($value)
{
    return $value === null ? null : $value == 'On';
}

// What is wanted, as it is shown. What the form has not sent is inactive there, and stays as it is.
function values_wanted($seen)
{
    $wanted = $seen;
    $names = array('enabled' => 'enabled', 'stateless' => 'stateless', 'dhcp' => 'dhcp', 'static' => 'mode');
    foreach ($names as $field => $name) {
        if (isset($_POST[$field])) {
            $wanted[$name] = posted($field) == '1' ? 'On' : 'Off';
        }
    }
    if (isset($_POST['static']) && $wanted['mode'] == 'On') {
        $wanted['ip'] = posted('ipStatic');
        $wanted['prefix'] = posted('prefix');
        $wanted['gateway'] = posted('gateway');
    }
    return $wanted;
}

// Makes the change, unless something is wrong with it: array of errors and of what has changed meanwhile.
function change_ipv6($session, $seen)
{
    $wanted = values_wanted($seen);
    $values = values_that_differ($wanted, $seen);
    $changes_static = has_one_of($values, array('mode', 'ip', 'prefix', 'gateway'));
    $errors = $changes_static && $wanted['mode'] == 'On'
        ? ipv6_errors($wanted['ip'], $wanted['prefix'], $wanted['gateway']) : array();
    $meanwhile = $errors ? array() : changed_meanwhile($seen, $GLOBALS['kinds_of_change']['ipv6']['labels']);
    if ($errors || $meanwhile || posted('reviewed') == 'back') {
        return array($errors, $meanwhile);
    }
    if (!$values) {
        go_to('ipv6.php', UNCHANGED);
    }
    begin_reading();
    $before = settings_of($session, 'ipv6');
    if (!could_read()) {
        return array(array('enabled' => UNREADABLE), array());
    }
    $new_address = $changes_static && $wanted['mode'] == 'On' && $wanted['enabled'] == 'On' ? $wanted['ip'] : '';
    if ($new_address != '' && $before['enabled'] && posted('reviewed') != 'yes') {
        $warnings = address_warnings($before['static'] ? $before['ip'] : '', $new_address, $wanted['gateway'],
            $before['static'] ? $before['gateway'] : '');
        if ($warnings) {
            show_review($warnings, $values, $seen);
        }
    }
    // What is only stored locks nobody out.
    $seconds = !$before['enabled'] && $wanted['enabled'] == 'Off' ? 0 : chosen_seconds();
    // Over IPv6 the answer might not arrive: the watcher does it then.
    return array($seconds == 0 && !$changes_static && ipv4_bytes(address_of_request()) !== false
        ? switch_at_once($session, $values, $before) : begin_ipv6($session, $values, $before, $new_address, $seconds), array());
}

function values_that_differ($wanted, $seen)
{
    $values = array();
    foreach ($wanted as $name => $value) {
        if (!isset($seen[$name]) || !same_value($value, $seen[$name])) {
            $values[$name] = $value;
        }
    }
    return $values;
}

// The address of the other family, for a visitor who may lose the one in use; else ''.
function other_way($session)
{
    if (ipv4_bytes(address_of_request()) !== false) {
        return '';
    }
    $ipv4 = get_network_configuration_ipv4($session);
    return is_host_address($ipv4->ip) ? origin_of($ipv4->ip, port_of_request()) . '/' : '';
}

// What is wanted, as put_into_force() takes it: all settings of IPv6, of which the form changes some.
function wanted_ipv6($values, $before)
{
    $wanted = $before;
    foreach ($values as $name => $value) {
        $wanted[$name == 'mode' ? 'static' : $name] = in_array($name, array('ip', 'prefix', 'gateway')) ? $value : $value == 'On';
    }
    return $wanted;
}

function begin_ipv6($session, $values, $before, $new_address, $seconds)
{
    $trial = new_trial($session, 'ipv6', $values, $before, $before['static'] ? $before['ip'] : '', $new_address, $seconds);
    $ipv4 = get_network_configuration_ipv4($session);
    $trial['others'] = is_host_address($ipv4->ip) ? array($ipv4->ip) : array();
    // Over IPv6 the way leads to the other family's address, which the appliance has already.
    $trial['goes_alone'] = moved_to($trial) == '';
    $errors = start_change($session, $trial, wanted_ipv6($values, $before));
    return $errors ? array('enabled' => $errors[0]) : array();
}

// Without a trial, what is in force when the module's functions return. Each by itself, so that one that fails does not keep the
// others from being set.
function switch_at_once($session, $values, $before)
{
    if (trial_in_the_way()) {
        return array('enabled' => 'Another change is on trial: keep or undo it first. Yours was not applied.');
    }
    begin_change();
    put_into_force($session, 'ipv6', wanted_ipv6($values, $before));
    audit_change($session, 'ipv6', 'Set', 'the IPv6 settings', $GLOBALS['kinds_of_change']['ipv6']['labels'],
        values_before('ipv6', $before, $values), $values);
    if (change_failed()) {
        return array();
    }
    if (isset($values['enabled'])) {
        go_to('ipv6.php', $values['enabled'] == 'On' ? 'IPv6 is on. Addresses appear within some seconds.' : 'IPv6 is off.');
    }
    go_to('ipv6.php', $before['enabled'] ? 'The sources of addresses are set. Addresses appear or go within some seconds.'
        : 'The sources of addresses are stored. They come into force when IPv6 is switched on.');
}

function show_review($warnings, $values, $now)
{
    $rows = array();
    foreach ($values as $name => $value) {
        $rows[] = array('label' => $GLOBALS['kinds_of_change']['ipv6']['labels'][$name],
            'now' => isset($now[$name]) ? $now[$name] : 'None', 'wanted' => $value);
    }
    $typed = array();
    foreach (array('change', 'seen', 'enabled', 'stateless', 'dhcp', 'static', 'ipStatic', 'prefix', 'gateway', 'trial') as $name) {
        if (isset($_POST[$name])) {
            $typed[$name] = text_of($_POST, $name);
        }
    }
    show('review', array('title' => 'Before it is applied', 'part_of' => 'ipv6.php', 'page' => 'ipv6.php',
        'warnings' => $warnings, 'rows' => $rows, 'typed' => $typed, 'lead' => 'Nothing has been changed yet.'));
}

function read_modes()
{
    return array('stateless' => is_stateless_enabled(), 'dhcp' => is_ipv6_dhcp_enabled());
}
