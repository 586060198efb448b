<?php
require dirname(dirname(__FILE__)) . '/shared/page.php';
require dirname(dirname(__FILE__)) . '/shared/applying.php';

// As the module reads them. It takes any text in "staticEnabled" for a static address, so that none is null; the
// others carry texts in either case.
class Ipv6Settings
{
    var $staticEnabled;
    var $ipStatic;
    var $gateway;
    var $prefix;
}

$session = signed_in();
$settings = get_network_configuration_ipv6($session);
$modes = read_modes();
$typed = array('static' => $settings->staticEnabled, 'prefix' => $settings->prefix,
    'ipStatic' => $settings->staticEnabled ? short_ipv6($settings->ipStatic) : '',
    'gateway' => $settings->staticEnabled ? short_ipv6($settings->gateway) : '');
$errors = array();
$change = is_post() ? posted('change') : '';
if ($change == 'enabled') {
    switch_ipv6($session);
} elseif ($change == 'modes') {
    switch_modes($session, $modes);
    $modes = read_modes();
} elseif ($change == 'static') {
    $typed = array('static' => posted('static') == '1', 'ipStatic' => posted('ipStatic'), 'prefix' => posted('prefix'),
        'gateway' => posted('gateway'));
    $errors = $typed['static'] ? ipv6_errors($typed['ipStatic'], $typed['prefix'], $typed['gateway']) : array();
    if (!$errors) {
        begin_ipv6($session, $settings, $typed);
    }
}
show('ipv6', array('title' => 'IPv6', 'enabled' => is_ipv6_enabled(), 'modes' => $modes, 'typed' => $typed,
    'in_use' => is_ipv6_static_enabled(), 'addresses' => get_all_ipv6_addresses(), 'errors' => $errors,
    'lead' => 'Whether the appliance uses IPv6, and where its addresses come from.'));

function switch_ipv6($session)
{
    $on = posted('enabled') == '1';
    begin_change();
    set_ipv6_enabled($session, $on);
    if (!change_failed()) {
        go_to('ipv6.php', $on ? 'IPv6 is on. Addresses appear within some seconds.' : 'IPv6 is off.');
    }
}

// Each mode by itself, so that one that fails does not keep the other from being set.
function switch_modes($session, $now)
{
    $stateless = posted('stateless') == '1';
    $dhcp = posted('dhcp') == '1';
    begin_change();
    if ($stateless != $now['stateless']) {
        set_stateless_enabled($session, $stateless);
    }
    if ($dhcp != $now['dhcp']) {
        set_ipv6_dhcp_enabled($session, $dhcp);
    }
    if (!change_failed()) {
        go_to('ipv6.php', 'The sources of addresses are set. Addresses appear or go within some seconds.');
    }
}

function read_modes()
{
    return array('stateless' => is_stateless_enabled(), 'dhcp' => is_ipv6_dhcp_enabled());
}

function begin_ipv6($session, $settings, $typed)
{
    $wanted = new Ipv6Settings();
    if ($typed['static']) {
        $wanted->staticEnabled = '1';
        $wanted->ipStatic = $typed['ipStatic'];
        $wanted->prefix = $typed['prefix'];
        $wanted->gateway = $typed['gateway'];
        $values = array('mode' => 'On', 'ip' => $wanted->ipStatic, 'prefix' => $wanted->prefix,
            'gateway' => $wanted->gateway);
    } else {
        $wanted->staticEnabled = null;
        $wanted->ipStatic = $settings->ipStatic;
        $wanted->prefix = $settings->prefix;
        $wanted->gateway = $settings->gateway;
        $values = array('mode' => 'Off');
    }
    $change = new_change($session, 'ipv6', $values, $settings->ipStatic, $typed['static'] ? $typed['ipStatic'] : '');
    begin_change();
    set_network_configuration_ipv6($session, $wanted);
    if (!change_failed()) {
        follow_change($session, $change);
    }
}
