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
$typed = array('static' => $settings->staticEnabled, 'prefix' => $settings->prefix,
    'ipStatic' => $settings->staticEnabled ? short_ipv6($settings->ipStatic) : '',
    'gateway' => $settings->staticEnabled ? short_ipv6($settings->gateway) : '');
$errors = array();
$change = is_post() ? posted('change') : '';
$seen = values_shown($settings, $modes);
$meanwhile = array();
if ($change != '') {
    end_asking(); // what is asked of the network before a change may take longer than a page waits
    list($errors, $meanwhile) = change_ipv6($session, $change, $seen, $settings);
    $modes = read_modes();
    $seen = values_shown($settings, $modes);
}
$again = is_post() ? false : values_again('ipv6');
if ($again) {
    $typed = array('static' => $again['mode'] == 'On', 'ipStatic' => isset($again['ip']) ? $again['ip'] : '',
        'prefix' => isset($again['prefix']) ? $again['prefix'] : $typed['prefix'],
        'gateway' => isset($again['gateway']) ? $again['gateway'] : '');
}
if ($change == 'static') {
    $typed = array('static' => posted('static') == '1', 'ipStatic' => posted('ipStatic'), 'prefix' => posted('prefix'),
        'gateway' => posted('gateway'));
}
$in_use = $unknown['static'] ? '' : is_ipv6_static_enabled();
begin_reading();
$addresses = get_all_ipv6_addresses();
$unknown['addresses'] = !could_read();
show('ipv6', array('title' => 'IPv6', 'enabled' => is_ipv6_enabled(), 'modes' => $modes, 'typed' => $typed,
    'in_use' => $in_use, 'addresses' => $addresses, 'unknown' => $unknown, 'errors' => $errors,
    'meanwhile' => $meanwhile, 'change' => $change, 'seen' => $seen, 'other_way' => other_way($session),
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
    // Modes that are only stored are set at once. Over IPv6 the answer might not arrive: the watcher does it then.
    $only_stored = $change == 'modes' && !$before['enabled'];
    if ($change != 'static' && ($only_stored || chosen_seconds() == 0 && ipv4_bytes(address_of_request()) !== false)) {
        return array(switch_at_once($session, $change, $before), array());
    }
    return array(begin_ipv6($session, $kind, $values, $before), array());
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
    $kind = $change == 'enabled' ? 'ipv6-switch' : 'ipv6-modes';
    put_back($session, 'ipv6', wanted_ipv6($kind, $before));
    audit_change($session, 'ipv6', 'Set', $change == 'enabled' ? 'the IPv6 switch' : 'the sources of IPv6 addresses',
        $GLOBALS['kinds_of_change'][$kind]['labels'], values_before($kind, $before), values_typed($change));
    if (!change_failed()) {
        go_to('ipv6.php', $change == 'modes' ? ($before['enabled']
            ? 'The sources of addresses are set. Addresses appear or go within some seconds.'
            : 'The sources of addresses are stored. They come into force when IPv6 is switched on.')
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
