<?php
require dirname(dirname(__FILE__)) . '/shared/page.php';

$session = signed_in();
ask_device();
$settings = get_fw_settings($session);
$unknown = unknown_parts();
foreach ($unknown as $part => $names) {
    foreach ($names as $name) {
        $settings->$name = '';
    }
}
begin_reading();
$receivers = get_snmp_trap_regs($session);
$are_known = could_read() && !services_unreadable();
if (services_unreadable()) {
    $unknown['ssl'] = array('sslEnabled');
    $unknown['snmp'] = array('snmpEnabled');
}
show('index', array('title' => 'Overview', 'lead' => 'The appliance\'s network at a glance.',
    'settings' => $settings, 'unknown' => $unknown, 'receivers' => $are_known ? count($receivers) : '',
    'restored' => has_facts() ? fact('settings.restored') : restored_settings(), 'alarms' => alarms($settings)));

// Of the settings, those that the module says it could not read: part => names.
function unknown_parts()
{
    $parts = array(
        'hostname information' => array('name', array('hostname')),
        'IPv4 network information' => array('ipv4', array('ip', 'netmask', 'gateway', 'dhcpEnabled')),
        'static IPv4 settings' => array('ipv4', array('ip', 'netmask', 'gateway')),
        'stateless settings' => array('stateless', array('statelessEnabled')),
        'static IPv6 settings' => array('static', array('staticEnabled')),
        'IPv6 addresses' => array('addresses', array('ipv6Addresses')),
        'DNS addresses' => array('dns', array('dnsPrimary', 'dnsSecondary')),
        'port settings' => array('port', array('AutoNegotiate', 'Speed', 'Duplex')),
        'SSL settings' => array('ssl', array('sslEnabled')),
        'SNMP versions' => array('snmp', array('snmpEnabled'))
    );
    $unknown = array();
    foreach ($GLOBALS['failures'] as $failure) {
        foreach ($parts as $words => $part) {
            if (strpos($failure['message'], $words) !== false) {
                $unknown[$part[0]] = $part[1];
            }
        }
    }
    return $unknown;
}
