<?php
require dirname(dirname(__FILE__)) . '/shared/page.php';
require dirname(dirname(__FILE__)) . '/shared/applying.php';
require dirname(dirname(__FILE__)) . '/shared/meanwhile.php';
require dirname(dirname(__FILE__)) . '/shared/review.php';

$session = signed_in();
ask_device();
$settings = get_network_configuration_ipv4($session);
$is_known = could_read();
if (is_post()) {
    end_asking(); // what is asked of the network before a change may take longer than a page waits
}
$current_name = $settings->hostname;
$errors = array();
$meanwhile = array();
$seen = $is_known ? values_shown($settings) : array();
$current = $settings;
if (is_post() && posted('change') == 'name') {
    $settings->hostname = posted('hostname');
    $meanwhile = $current_name === '' ? array()
        : changed_meanwhile(array('hostname' => $current_name), array('hostname' => 'Name'));
    if (!$meanwhile) {
        $errors = change_name($session, $current_name, $settings->hostname);
    }
} elseif (is_post()) {
    $wanted = wanted_settings($current_name);
    $errors = addressing_errors($wanted);
    if (!$errors && !$is_known && chosen_seconds() > 0) {
        $errors = array('mode' => UNREADABLE);
    }
    $meanwhile = $errors || !$is_known ? array() : changed_meanwhile($seen, $kinds_of_change['ipv4']['labels']);
    if (!$errors && !$meanwhile && posted('reviewed') != 'back') {
        $errors = change_addressing($session, $settings, $wanted, $seen);
    }
    $settings = $wanted;
}
$again = is_post() ? false : values_again('ipv4');
if ($again) {
    $settings = ipv4_settings($current_name, array('dhcp' => $again['mode'] == 'DHCP') + $again
        + array('ip' => $current->ip, 'netmask' => $current->netmask, 'gateway' => $current->gateway));
}
show('ipv4', array('title' => 'IPv4 and host name', 'settings' => $settings, 'errors' => $errors, 'name' => $current_name,
    'mode' => posted('change') == 'addressing' ? posted('mode')
        : (!$is_known && !$again ? null : ($settings->dhcpEnabled ? 'dhcp' : 'static')),
    'meanwhile' => $meanwhile, 'seen' => $seen, 'current' => $current, 'is_known' => $is_known,
    'lead' => 'The name and the address under which the appliance is found.'));

function change_name($session, $old, $new)
{
    $error = host_name_error($new);
    if ($error != '') {
        return array('hostname' => $error);
    }
    if ($new === $old) {
        go_to('ipv4.php', UNCHANGED);
    }
    begin_change();
    set_network_hostname($session, $new);
    audit_change($session, 'name', 'Set', 'the host name', array('name' => 'Name'),
        $old === '' ? array() : array('name' => $old), array('name' => $new));
    if (!change_failed()) {
        go_to('ipv4.php', 'The host name is now ' . $new . '.');
    }
    return array('hostname' => 'The appliance did not take this name.');
}

function wanted_settings($hostname)
{
    return ipv4_settings($hostname, array('dhcp' => posted('mode') == 'dhcp', 'ip' => posted('ip'),
        'netmask' => posted('netmask'), 'gateway' => posted('gateway')));
}

function addressing_errors($wanted)
{
    // The appliance sets it first, and goes on to the address only when that has worked.
    if ($wanted->hostname == '') {
        return array('mode' => 'The host name cannot be read, and without it the address cannot be changed. Set a name first.');
    }
    if (posted('mode') == 'dhcp') {
        return array();
    }
    if (posted('mode') != 'static') {
        return array('mode' => 'Choose where the address comes from.');
    }
    return ipv4_errors($wanted->ip, $wanted->netmask, $wanted->gateway);
}

// What the settings are, as the form shows them; what a DHCP server gives is nobody's setting.
function values_shown($settings)
{
    return $settings->dhcpEnabled ? array('mode' => 'DHCP') : array('mode' => 'Static', 'ip' => $settings->ip,
        'netmask' => $settings->netmask, 'gateway' => $settings->gateway);
}

// Begins the change, when nothing speaks against it; else errors. $seen: what of $now is known, as the form shows it.
function change_addressing($session, $now, $wanted, $seen)
{
    $values = values_shown($wanted);
    // Without a lease, asking the DHCP server again is what is wanted.
    if (is_unchanged($values, $seen) && present_value($now->ip) != 'None') {
        go_to('ipv4.php', UNCHANGED);
    }
    if ($wanted->dhcpEnabled === null && posted('reviewed') != 'yes') {
        $warnings = array_merge(address_warnings($now->ip, $wanted->ip, $wanted->gateway, $now->gateway),
            network_warnings($wanted->ip, $wanted->netmask, $now), name_server_warnings($session, $now));
        if ($warnings) {
            show_review($warnings, $values, $now);
        }
    }
    $to = $wanted->dhcpEnabled === null ? $wanted->ip : '';
    $trial = new_trial($session, 'ipv4', $values, settings_of($session, 'ipv4'), $now->ip, $to, chosen_seconds());
    $trial['others'] = $to == '' ? places_with_dhcp($now->hostname) : array();
    $trial['goes_alone'] = $to != '' && was_silent($to, $now);
    if ($now->dhcpEnabled && $to != '' && is_host_address($now->ip)) {
        replace_file(EARLIER_LEASE, $now->ip);
    }
    $errors = start_change($session, $trial, array('hostname' => $wanted->hostname,
        'dhcp' => $wanted->dhcpEnabled !== null, 'ip' => $wanted->ip, 'netmask' => $wanted->netmask,
        'gateway' => $wanted->gateway));
    return $errors ? array('mode' => $errors[0]) : array();
}

function show_review($warnings, $values, $now)
{
    $rows = array();
    $old = array('mode' => $now->dhcpEnabled ? 'DHCP' : 'Static', 'ip' => $now->ip, 'netmask' => $now->netmask,
        'gateway' => $now->gateway);
    foreach ($values as $name => $value) {
        $rows[] = array('label' => $GLOBALS['kinds_of_change']['ipv4']['labels'][$name], 'now' => present_value($old[$name]),
            'wanted' => $value);
    }
    $typed = array();
    foreach (array('change', 'seen', 'mode', 'ip', 'netmask', 'gateway', 'trial') as $name) {
        $typed[$name] = text_of($_POST, $name);
    }
    show('review', array('title' => 'Before it is applied', 'part_of' => 'ipv4.php', 'page' => 'ipv4.php',
        'warnings' => $warnings, 'rows' => $rows, 'typed' => $typed,
        'lead' => 'Nothing has been changed yet.'));
}

// Where an appliance that asks a DHCP server is likely to be found: under the lease of before, or under its name.
function places_with_dhcp($hostname)
{
    $places = array();
    $lease = is_readable(EARLIER_LEASE) ? trim(implode('', file(EARLIER_LEASE))) : '';
    if (ipv4_bytes($lease) && is_host_address($lease)) {
        $places[] = $lease;
    }
    if (host_name_error($hostname) == '') {
        $places[] = $hostname;
    }
    return $places;
}
