<?php
// What the network can say about an address before it is used: warnings, shown on a step of their own. A device without the
// tools for it says nothing, and there is no such step.

$said_of_addresses = array(); // what was found out already: address => answer

// 'answers', 'silent', or '' when that cannot be told.
function probe_address($address)
{
    if (!isset($GLOBALS['said_of_addresses'][$address])) {
        $GLOBALS['said_of_addresses'][$address] = is_address($address) ? ask_network($address) : '';
    }
    return $GLOBALS['said_of_addresses'][$address];
}

function ask_network($address)
{
    $status = 1;
    $lines = array();
    exec('/bin/sh ' . APPLIANCE_FOLDER . '/AppManager/bin/probeAddress.sh ' . strtolower($address), $lines, $status);
    $said = $status == 0 && $lines ? $lines[0] : '';
    return $said == 'answers' || $said == 'silent' ? $said : '';
}

// Whether nobody else has the address, as far as that was asked. Of an address outside of the network of now the appliance cannot
// tell: a router may know a device that has it.
function was_silent($address, $now)
{
    $old_mask = ipv4_bytes($now->netmask);
    return isset($GLOBALS['said_of_addresses'][$address]) && $GLOBALS['said_of_addresses'][$address] == 'silent'
        && $old_mask && same_network(ipv4_bytes($now->ip), ipv4_bytes($address), netmask_length($old_mask));
}

// Sentences about a wanted address and its gateway. $from: the address of now.
function address_warnings($from, $address, $gateway, $gateway_of_now)
{
    $warnings = array();
    if (!same_value($from, $address) && probe_address($address) == 'answers') {
        $warnings[] = "Another device answers under $address already. Two devices with one address disturb each other, and you"
            . ' may not reach this appliance.';
    }
    if (!same_value($gateway, $gateway_of_now) && !same_value($gateway, $address) && probe_address($gateway) == 'silent') {
        $warnings[] = "The gateway $gateway does not answer. Without it the appliance is reached from its own network only.";
    }
    return $warnings;
}

// What goes with the lease: sentences.
function name_server_warnings($session, $now)
{
    $set = get_network_dns($session);
    if (!$now->dhcpEnabled || $set->dnsPrimary != '' || $set->dnsSecondary != '') {
        return array();
    }
    return array('The name servers come from the DHCP server and go with its address: names are no longer resolved then. Set name'
        . ' servers under DNS, before or after this.');
}

// Whether the visitor, who is in the appliance's network of now, is outside of the wanted one: sentences.
function network_warnings($ip, $netmask, $now)
{
    $client = ipv4_bytes(client_of_request());
    $old = ipv4_bytes($now->ip);
    $old_mask = ipv4_bytes($now->netmask);
    if (!$client || !$old || !$old_mask || !same_network($client, $old, netmask_length($old_mask))
        || same_network($client, ipv4_bytes($ip), netmask_length(ipv4_bytes($netmask)))) {
        return array();
    }
    return array('Your computer has the address ' . client_of_request() . ", which is outside of the network of $ip. You will not"
        . ' reach the appliance unless a router connects the two, or your computer gets an address of that network.');
}
