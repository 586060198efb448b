<?php
// What the network can say about an address before it is used: warnings, shown on a step of their own. A device without the
// tools for it says nothing, and there is no such step.

// 'answers', 'silent', or '' when that cannot be told.
function probe_address($address)
{
    if (!is_address($address)) {
        return '';
    }
    $status = 1;
    $lines = array();
    exec('/bin/sh ' . APPLIANCE_FOLDER . '/AppManager/bin/probeAddress.sh ' . strtolower($address), $lines, $status);
    $said = $status == 0 && $lines ? $lines[0] : '';
    return $said == 'answers' || $said == 'silent' ? $said : '';
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
