<?php
// The settings that a change on trial is about: reading all that it takes to have them again, and putting them back.

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

// What a kind of change is about: the three changes of IPv6 share their settings.
function family_of_kind($kind)
{
    return strpos($kind, 'ipv6') === 0 ? 'ipv6' : $kind;
}

// All that put_back() needs.
function settings_of($session, $kind)
{
    $family = family_of_kind($kind);
    if ($family == 'ipv4') {
        $now = get_network_configuration_ipv4($session);
        return array('hostname' => $now->hostname, 'dhcp' => $now->dhcpEnabled, 'ip' => $now->ip, 'netmask' => $now->netmask,
            'gateway' => $now->gateway);
    }
    if ($family == 'ssl') {
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
    $family = family_of_kind($kind);
    if ($family == 'ipv4') {
        return $settings['dhcp'] ? 'dhcp' : $settings['ip'] . '/' . $settings['netmask'] . '?' . $settings['gateway'];
    }
    if ($family == 'ssl') {
        return $settings['https'] ? 'https' : 'http';
    }
    return ($settings['enabled'] ? 'on' : 'off') . ' ' . ($settings['stateless'] ? 'stateless' : '') . ' '
        . ($settings['dhcp'] ? 'dhcp' : '') . ' ' . static_ipv6_text($settings);
}

// Asks the module for the settings, in the name of the user. Returns whether they come into force later, in a thread that
// writes its end into the trace log; else they are in force when this returns.
function put_back($session, $kind, $settings)
{
    $family = family_of_kind($kind);
    if ($family == 'ipv4') {
        // The name may have been changed since, and that was no part of what is taken back.
        $hostname = get_network_hostname();
        set_network_configuration_ipv4($session,
            ipv4_settings($hostname == '' ? $settings['hostname'] : $hostname, $settings));
        return true;
    }
    if ($family == 'ssl') {
        name_user_to_services($session);
        set_ssl_settings($session, $settings['https']);
        return false;
    }
    return put_back_ipv6($session, $settings, settings_of($session, $kind));
}

// Only what differs, so that addresses that stay are not interrupted.
function put_back_ipv6($session, $settings, $now)
{
    if ($settings['stateless'] != $now['stateless']) {
        set_stateless_enabled($session, $settings['stateless']);
    }
    if ($settings['dhcp'] != $now['dhcp']) {
        set_ipv6_dhcp_enabled($session, $settings['dhcp']);
    }
    $is_traced = static_ipv6_text($settings) != static_ipv6_text($now);
    if ($is_traced) {
        set_network_configuration_ipv6($session, ipv6_settings($settings));
    }
    if ($settings['enabled'] != $now['enabled']) {
        set_ipv6_enabled($session, $settings['enabled']);
    }
    return $is_traced;
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
