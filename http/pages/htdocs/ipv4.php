<?php
require dirname(dirname(__FILE__)) . '/shared/page.php';
require dirname(dirname(__FILE__)) . '/shared/applying.php';

// As the module reads them. It takes any text in "dhcpEnabled" for DHCP, so that static is null.
class Ipv4Settings
{
    var $hostname;
    var $dhcpEnabled;
    var $ip;
    var $netmask;
    var $gateway;
}

$session = signed_in();
$settings = get_network_configuration_ipv4($session);
$current_name = $settings->hostname;
$errors = array();
if (is_post() && posted('change') == 'name') {
    $settings->hostname = posted('hostname');
    $errors = change_name($session, $current_name, $settings->hostname);
} elseif (is_post()) {
    $wanted = wanted_settings($current_name);
    $errors = addressing_errors($wanted);
    if (!$errors) {
        begin_ipv4($session, $settings, $wanted);
    }
    $settings = $wanted;
}
show('ipv4', array('title' => 'IPv4 and host name', 'settings' => $settings, 'errors' => $errors, 'name' => $current_name,
    'mode' => posted('change') == 'addressing' ? posted('mode') : ($settings->dhcpEnabled ? 'dhcp' : 'static'),
    'lead' => 'The name and the address under which the appliance is found.'));

function change_name($session, $old, $new)
{
    $error = host_name_error($new);
    if ($error != '') {
        return array('hostname' => $error);
    }
    begin_change();
    set_network_hostname($session, $new);
    if (!change_failed()) {
        go_to('ipv4.php', $new == $old ? 'The host name was ' . $new . ' already; nothing was changed.'
            : 'The host name is now ' . $new . '.');
    }
    return array('hostname' => 'The appliance did not take this name.');
}

function wanted_settings($hostname)
{
    $wanted = new Ipv4Settings();
    $wanted->hostname = $hostname;
    $wanted->dhcpEnabled = posted('mode') == 'dhcp' ? '1' : null;
    $wanted->ip = posted('ip');
    $wanted->netmask = posted('netmask');
    $wanted->gateway = posted('gateway');
    return $wanted;
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

function begin_ipv4($session, $settings, $wanted)
{
    if ($wanted->dhcpEnabled !== null) {
        $values = array('mode' => 'DHCP');
    } else {
        $values = array('mode' => 'Static', 'ip' => $wanted->ip, 'netmask' => $wanted->netmask,
            'gateway' => $wanted->gateway);
    }
    $change = new_change($session, 'ipv4', $values, $settings->ip, $wanted->dhcpEnabled !== null ? '' : $wanted->ip);
    begin_change();
    set_network_configuration_ipv4($session, $wanted);
    if (!change_failed()) {
        follow_change($session, $change);
    }
}
