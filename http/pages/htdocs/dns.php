<?php
require dirname(dirname(__FILE__)) . '/shared/page.php';
require dirname(dirname(__FILE__)) . '/shared/meanwhile.php';
require dirname(dirname(__FILE__)) . '/shared/settings_rules.php';

$session = signed_in();
ask_device();
$settings = get_network_dns($session);
$is_known = could_read();
$errors = array();
$meanwhile = array();
$labels = array('dnsPrimary' => 'Primary server', 'dnsSecondary' => 'Secondary server');
$seen = !$is_known ? array() : array('dnsPrimary' => $settings->dnsPrimary, 'dnsSecondary' => $settings->dnsSecondary);
if (!$is_known) {
    $settings->dnsPrimary = null;
    $settings->dnsSecondary = null;
}
if (is_post()) {
    $settings = new DnsSettings();
    $settings->dnsPrimary = posted('dnsPrimary');
    $settings->dnsSecondary = posted('dnsSecondary');
    $errors = dns_errors($settings);
    $meanwhile = $errors || !$is_known ? array() : changed_meanwhile($seen, $labels);
    if (!$errors && !$meanwhile) {
        if (is_unchanged(array('dnsPrimary' => $settings->dnsPrimary, 'dnsSecondary' => $settings->dnsSecondary), $seen)) {
            go_to('dns.php', UNCHANGED);
        }
        begin_change();
        set_network_dns($session, $settings);
        audit_change($session, 'dns', 'Set', 'the DNS servers', $labels, $seen,
            array('dnsPrimary' => $settings->dnsPrimary, 'dnsSecondary' => $settings->dnsSecondary));
        if (!change_failed()) {
            go_to('dns.php', $settings->dnsPrimary == '' ? 'The DNS servers are removed.' : 'The DNS servers are set.');
        }
        $errors = is_internal_address() ? internal_address_errors($settings) : array();
    }
}
show('dns', array('title' => 'DNS', 'lead' => 'The servers that the appliance asks for the addresses of names.',
    'settings' => $settings, 'is_known' => $is_known, 'errors' => $errors, 'meanwhile' => $meanwhile, 'seen' => $seen));

// The appliance does not say which of them it refuses.
function internal_address_errors($settings)
{
    if ($settings->dnsSecondary == '') {
        return array('dnsPrimary' => 'This address is used inside the appliance. Enter a server of your own network.');
    }
    $error = 'This address or the other one is used inside the appliance. Enter servers of your own network.';
    return array('dnsPrimary' => $error, 'dnsSecondary' => $error);
}
