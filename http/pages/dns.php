<?php
require dirname(__FILE__) . '/library/page.php';

class DnsSettings
{
    var $dnsPrimary;
    var $dnsSecondary;
}

$session = signed_in();
$settings = get_network_dns($session);
$errors = array();
if (is_post()) {
    $settings = new DnsSettings();
    $settings->dnsPrimary = posted('dnsPrimary');
    $settings->dnsSecondary = posted('dnsSecondary');
    $errors = dns_errors($settings);
    if (!$errors) {
        set_network_dns($session, $settings);
        if (!failed()) {
            go_to('dns.php', $settings->dnsPrimary == '' ? 'The DNS servers are removed.' : 'The DNS servers are set.');
        }
    }
}
show('dns', array('title' => 'DNS', 'lead' => 'The servers that the appliance asks for the addresses of names.',
    'settings' => $settings, 'errors' => $errors));

function dns_errors($settings)
{
    $errors = array();
    foreach (array('dnsPrimary', 'dnsSecondary') as $field) {
        if ($settings->$field != '' && !is_address($settings->$field)) {
            $errors[$field] = 'Enter an IPv4 or IPv6 address, such as 10.20.0.1 or 2001:db8:20::1.';
        }
    }
    if ($settings->dnsPrimary == '' && $settings->dnsSecondary != '') {
        $errors['dnsPrimary'] = 'Enter the only server here and leave the second one empty.';
    }
    return $errors;
}
