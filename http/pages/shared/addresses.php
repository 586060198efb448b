<?php
// The rules for addresses and host names that a person types. The appliance has its own and checks again; these are
// there to say what is wrong beside the field. This file needs no other one.

// Networks within the appliance, a line each in CIDR notation. A device may have no such list; then it says itself what it
// refuses.
if (!defined('INTERNAL_NETWORKS')) {
    define('INTERNAL_NETWORKS', '/home/embedded/library/AppManager/etc/internal_networks');
}

// The four bytes of a dotted decimal address, or false.
function ipv4_bytes($text)
{
    if (!preg_match('/^([0-9]{1,3})\.([0-9]{1,3})\.([0-9]{1,3})\.([0-9]{1,3})$/D', $text, $found)) {
        return false;
    }
    $bytes = array();
    for ($i = 1; $i <= 4; $i++) {
        // No leading zeros: to some they mean octal.
        if ($found[$i] > 255 || $found[$i] !== (string) (int) $found[$i]) {
            return false;
        }
        $bytes[] = (int) $found[$i];
    }
    return $bytes;
}

// An IPv4 address in its own notation, also where a service listens for both families and sees it in that of IPv6.
function plain_address($text)
{
    return preg_match('/^::ffff:([0-9.]+)$/Di', $text, $found) ? $found[1] : $text;
}

// The sixteen bytes of an IPv6 address in any notation, or false.
function ipv6_bytes($text)
{
    // An IPv4 address at the end stands for the last two groups.
    if (preg_match('/^(.*:)([0-9.]+)$/D', $text, $found) && strpos($found[2], '.') !== false) {
        $last = ipv4_bytes($found[2]);
        if (!$last) {
            return false;
        }
        $text = $found[1] . sprintf('%x:%x', $last[0] * 256 + $last[1], $last[2] * 256 + $last[3]);
    }
    $halves = explode('::', $text);
    $groups = groups_of($halves[0]);
    if (count($halves) == 2) {
        $behind = groups_of($halves[1]);
        $missing = 8 - count($groups) - count($behind);
        if ($missing < 1) {
            return false;
        }
        $groups = array_merge($groups, array_fill(0, $missing, '0'), $behind);
    }
    if (count($halves) > 2 || count($groups) != 8) {
        return false;
    }
    $bytes = array();
    foreach ($groups as $group) {
        if (!preg_match('/^[0-9a-f]{1,4}$/Di', $group)) {
            return false;
        }
        $bytes[] = (int) (hexdec($group) / 256);
        $bytes[] = hexdec($group) % 256;
    }
    return $bytes;
}

function groups_of($text)
{
    return $text == '' ? array() : explode(':', $text);
}

// An IPv6 address as people write it: the longest run of zero groups is "::". Other texts stay as they are.
function short_ipv6($text)
{
    $bytes = ipv6_bytes($text);
    if (!$bytes) {
        return $text;
    }
    $groups = array();
    for ($i = 0; $i < 16; $i += 2) {
        $groups[] = dechex($bytes[$i] * 256 + $bytes[$i + 1]);
    }
    $full = implode(':', $groups);
    for ($zeros = 8; $zeros >= 2; $zeros--) {
        $run = implode(':', array_fill(0, $zeros, '0'));
        $at = strpos(':' . $full . ':', ':' . $run . ':');
        if ($at !== false) {
            return trim(substr($full, 0, $at), ':') . '::' . ltrim(substr($full, $at + strlen($run)), ':');
        }
    }
    return $full;
}

function is_address($text)
{
    return ipv4_bytes($text) || ipv6_bytes($text);
}

// Whether one device on a network can have the address, as the appliance sees it.
function is_host_address($text)
{
    $bytes = ipv4_bytes($text);
    if ($bytes) {
        return $bytes[0] > 0 && $bytes[0] < 224 && $bytes[0] != 127;
    }
    $bytes = ipv6_bytes($text);
    // Not one of IPv4 in the notation of IPv6, nor :: or ::1, nor one of a group of devices.
    return $bytes && !same_network($bytes, ipv6_bytes('::ffff:0:0'), 96) && !same_network($bytes, ipv6_bytes('::'), 127)
        && $bytes[0] != 255;
}

// What is wrong with the address of another host, or ''.
function host_error($text)
{
    if (!is_address($text)) {
        return 'Enter an IPv4 or IPv6 address, such as 10.20.0.1 or 2001:db8:20::1.';
    }
    return is_host_address($text) ? internal_error($text)
        : 'No other device can have this address. Enter one such as 10.20.0.1 or 2001:db8:20::1.';
}

// What is wrong with a second name server beside the first. The appliance itself takes the same one twice.
function second_server_error($primary, $secondary)
{
    return $secondary != '' && same_value($primary, $secondary)
        ? 'This is the primary server. Enter another one, or leave this field empty.' : '';
}

// Whether two texts are the same address, or the same text.
function same_value($one, $other)
{
    $bytes = ipv6_bytes($one);
    return $bytes ? $bytes == ipv6_bytes($other) : $one == $other;
}

// Whether two addresses of one family agree in their first $length bits.
function same_network($one, $other, $length)
{
    foreach ($one as $i => $byte) {
        $bits = min(8, max(0, $length - 8 * $i));
        if ($byte >> (8 - $bits) != $other[$i] >> (8 - $bits)) {
            return false;
        }
    }
    return true;
}

// The length of the prefix that a netmask stands for, or -1 when its ones are not all in front.
function netmask_length($bytes)
{
    $bits = '';
    foreach ($bytes as $byte) {
        $bits .= sprintf('%08b', $byte);
    }
    return preg_match('/^(1*)0*$/D', $bits, $found) ? strlen($found[1]) : -1;
}

// The network within the appliance that holds the address, as the list has it, or ''.
function internal_network_of($address)
{
    $bytes = ipv6_bytes(ipv4_bytes($address) ? '::ffff:' . $address : $address);
    $lines = $bytes && is_readable(INTERNAL_NETWORKS) && is_file(INTERNAL_NETWORKS) ? file(INTERNAL_NETWORKS) : array();
    foreach ($lines as $line) {
        if (!preg_match('/^([0-9A-Fa-f:.]+)\/([0-9]{1,3})$/D', trim($line), $found)) {
            continue;
        }
        $is_ipv4 = ipv4_bytes($found[1]) !== false;
        $network = ipv6_bytes(($is_ipv4 ? '::ffff:' : '') . $found[1]);
        if ($network && same_network($bytes, $network, $found[2] + ($is_ipv4 ? 96 : 0))) {
            return trim($line);
        }
    }
    return '';
}

// What is wrong when the address or the gateway is used within the appliance: field => sentence. $field: that of the address.
function internal_errors($field, $address, $gateway)
{
    foreach (array($field => $address, 'gateway' => $gateway) as $name => $value) {
        $error = internal_error($value);
        if ($error != '') {
            return array($name => $error);
        }
    }
    return array();
}

// The same for one address: a sentence, or ''.
function internal_error($address)
{
    $network = internal_network_of($address);
    return $network == '' ? ''
        : "The network $network is used inside the appliance. Choose an address of your own network.";
}

// What is wrong with a host name, or ''.
function host_name_error($name)
{
    if ($name == '') {
        return 'Enter a name.';
    }
    if (strlen($name) > 64) {
        return 'The name is too long: at most 64 characters.';
    }
    if (preg_match('/[^A-Za-z0-9.-]/', $name)) {
        return 'Use only letters (A to Z), digits, hyphens and dots.';
    }
    foreach (explode('.', $name) as $part) {
        if ($part == '' || strlen($part) > 63 || $part[0] == '-' || substr($part, -1) == '-') {
            return 'Each part between dots needs 1 to 63 characters and neither begins nor ends with a hyphen.';
        }
    }
    return '';
}

// What is wrong with static IPv4 settings: field => sentence.
function ipv4_errors($ip, $netmask, $gateway)
{
    $errors = array();
    $ip_bytes = ipv4_bytes($ip);
    $mask_bytes = ipv4_bytes($netmask);
    $gateway_bytes = ipv4_bytes($gateway);
    if (!$ip_bytes) {
        $errors['ip'] = 'Enter four numbers from 0 to 255 with dots between them, such as 10.20.0.7.';
    } elseif (!is_host_address($ip)) {
        $errors['ip'] = 'A device cannot have this address. Choose one of your network, such as 10.20.0.7.';
    }
    $length = $mask_bytes ? netmask_length($mask_bytes) : -1;
    if ($length < 1 || $length > 30) {
        $errors['netmask'] = 'Enter a netmask such as 255.255.255.0.';
    }
    if (!$gateway_bytes) {
        $errors['gateway'] = 'Enter the address of the router, such as 10.20.0.1.';
    }
    if ($errors) {
        return $errors;
    }
    if (is_first_or_last($ip_bytes, $length)) {
        $errors['ip'] = 'The first and the last address of a network belong to the network itself. Choose another.';
    }
    if (!same_network($ip_bytes, $gateway_bytes, $length)) {
        $errors['gateway'] = "The gateway must be in the same network as $ip with netmask $netmask.";
    } elseif ($gateway_bytes == $ip_bytes) {
        $errors['gateway'] = 'The gateway cannot be the appliance itself.';
    } elseif (is_first_or_last($gateway_bytes, $length)) {
        $errors['gateway'] = 'The first and the last address of a network belong to the network itself.';
    }
    return $errors ? $errors : internal_errors('ip', $ip, $gateway);
}

// Whether all bits behind the prefix are 0, or all are 1.
function is_first_or_last($bytes, $length)
{
    $bits = '';
    foreach ($bytes as $byte) {
        $bits .= sprintf('%08b', $byte);
    }
    return preg_match('/^(0*|1*)$/D', substr($bits, $length)) == 1;
}

// What is wrong with static IPv6 settings: field => sentence.
function ipv6_errors($address, $prefix, $gateway)
{
    $errors = array();
    $bytes = ipv6_bytes($address);
    $gateway_bytes = ipv6_bytes($gateway);
    if (!$bytes) {
        $errors['ipStatic'] = 'Enter an IPv6 address, such as 2001:db8:20::7.';
    } elseif (!is_host_address($address)) {
        $errors['ipStatic'] = 'A device cannot have this address. Choose one of your network, such as 2001:db8:20::7.';
    } elseif (same_network($bytes, ipv6_bytes('fe80::'), 10)) {
        $errors['ipStatic'] = 'The appliance has a link-local address of its own.'
            . ' Choose one of your network, such as 2001:db8:20::7.';
    }
    if (!preg_match('/^[1-9][0-9]{0,2}$/D', $prefix) || $prefix > 128) {
        $errors['prefix'] = 'Enter a number from 1 to 128; usual is 64.';
    }
    if (!$gateway_bytes || !is_host_address($gateway)) {
        $errors['gateway'] = 'Enter the IPv6 address of the router, such as 2001:db8:20::1 or fe80::1.';
    }
    if ($errors) {
        return $errors;
    }
    $link_local = ipv6_bytes('fe80::');
    if ($gateway_bytes == $bytes) {
        $errors['gateway'] = 'The gateway cannot be the appliance itself.';
    } elseif (!same_network($bytes, $gateway_bytes, $prefix) && !same_network($link_local, $gateway_bytes, 10)) {
        $errors['gateway'] = "The gateway must have the same first $prefix bits as the address, or begin with fe80.";
    }
    return $errors ? $errors : internal_errors('ipStatic', $address, $gateway);
}

// A client with IPv6 has a whole network of addresses to try from.
function network_of($client)
{
    $bytes = ipv6_bytes($client);
    if (!$bytes) {
        return preg_replace('/[^0-9A-Za-z.]/', '', $client);
    }
    $network = '';
    for ($i = 0; $i < 8; $i++) {
        $network .= sprintf('%02x', $bytes[$i]);
    }
    return $network;
}
