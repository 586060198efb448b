<?php
// The settings that a change on trial is about: reading all that it takes to have them again, putting them into force, and
// putting them back.

// As the module reads them; it takes any text in "dhcpEnabled" for DHCP, so that static is null.
class Ipv4Settings
{
    var $hostname;
    var $dhcpEnabled;
    var $ip;
    var $netmask;
    var $gateway;
}

// As the module reads them; any text in "staticEnabled" means a static address, so that none is null.
class Ipv6Settings
{
    var $staticEnabled;
    var $ipStatic;
    var $gateway;
    var $prefix;
}

// All that put_into_force() and put_back() need.
function settings_of($session, $kind)
{
    if ($kind == 'ipv4') {
        $now = get_network_configuration_ipv4($session);
        return array('hostname' => $now->hostname, 'dhcp' => $now->dhcpEnabled, 'ip' => $now->ip, 'netmask' => $now->netmask,
            'gateway' => $now->gateway);
    }
    if ($kind == 'ssl') {
        $now = get_ssl_settings($session);
        return array('https' => $now->isEnabled);
    }
    $now = get_network_configuration_ipv6($session);
    return array('enabled' => is_ipv6_enabled(), 'stateless' => is_stateless_enabled(), 'dhcp' => is_ipv6_dhcp_enabled(),
        'static' => $now->staticEnabled, 'ip' => $now->ipStatic, 'prefix' => $now->prefix, 'gateway' => $now->gateway);
}

// The settings in one line, to compare them: nobody's setting is what a DHCP server gives.
function settings_text($kind, $settings)
{
    if ($kind == 'ipv4') {
        return $settings['dhcp'] ? 'dhcp' : $settings['ip'] . '/' . $settings['netmask'] . '?' . $settings['gateway'];
    }
    if ($kind == 'ssl') {
        return $settings['https'] ? 'https' : 'http';
    }
    return ($settings['enabled'] ? 'on' : 'off') . ' ' . ($settings['stateless'] ? 'stateless' : '') . ' '
        . ($settings['dhcp'] ? 'dhcp' : '') . ' ' . static_ipv6_text($settings);
}

// Asks the module for the settings that are wanted, in the name of the user. Returns whether they come into force later, in a
// thread that writes its end into the trace log; else they are in force when this returns.
function put_into_force($session, $kind, $settings)
{
    if ($kind != 'ipv6') {
        return put_back($session, $kind, $settings);
    }
    $now = settings_of($session, $kind);
    switch_ipv6($session, $settings, $now);
    // The thread cannot be called back, so that it begins only when nothing else has failed.
    return !change_failed() && set_static_ipv6($session, $settings, $now);
}

// Likewise for the settings of before. $on_its_way: settings that a thread may still be putting into force, or none.
function put_back($session, $kind, $settings, $on_its_way = array())
{
    if ($kind == 'ipv4') {
        // The name may have been changed since, and that was no part of what is taken back.
        $hostname = get_network_hostname();
        set_network_configuration_ipv4($session,
            ipv4_settings($hostname == '' ? $settings['hostname'] : $hostname, $settings));
        return true;
    }
    if ($kind == 'ssl') {
        name_user_to_services($session);
        set_ssl_settings($session, $settings['https']);
        return false;
    }
    $now = settings_of($session, $kind);
    switch_ipv6($session, $settings, $now);
    if ($on_its_way && static_ipv6_text($now) == static_ipv6_text($settings)) {
        $now = $on_its_way;
    }
    return set_static_ipv6($session, $settings, $now);
}

// Only what differs, so that addresses that stay are not interrupted; each by itself, so that one that fails does not keep the
// others from being set. No address is fetched in a way that goes, or before all ways are set.
function switch_ipv6($session, $settings, $now)
{
    if ($now['enabled'] && !$settings['enabled']) {
        set_ipv6_enabled($session, false);
    }
    if ($settings['stateless'] != $now['stateless']) {
        set_stateless_enabled($session, $settings['stateless']);
    }
    if ($settings['dhcp'] != $now['dhcp']) {
        set_ipv6_dhcp_enabled($session, $settings['dhcp']);
    }
    if ($settings['enabled'] && !$now['enabled']) {
        set_ipv6_enabled($session, true);
    }
}

// Returns whether there was anything to set.
function set_static_ipv6($session, $settings, $now)
{
    if (static_ipv6_text($settings) == static_ipv6_text($now)) {
        return false;
    }
    set_network_configuration_ipv6($session, ipv6_settings($settings));
    return true;
}

function static_ipv6_text($settings)
{
    return !$settings['static'] ? '' : short_ipv6($settings['ip']) . '/' . $settings['prefix'] . '?'
        . short_ipv6($settings['gateway']);
}

function ipv4_settings($hostname, $settings)
{
    $object = new Ipv4Settings();
    $object->hostname = $hostname;
    $object->dhcpEnabled = $settings['dhcp'] ? '1' : null;
    $object->ip = $settings['ip'];
    $object->netmask = $settings['netmask'];
    $object->gateway = $settings['gateway'];
    return $object;
}

function ipv6_settings($settings)
{
    $object = new Ipv6Settings();
    $object->staticEnabled = $settings['static'] ? '1' : null;
    $object->ipStatic = $settings['ip'];
    $object->prefix = $settings['prefix'];
    $object->gateway = $settings['gateway'];
    return $object;
}
