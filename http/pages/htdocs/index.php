<?php
require dirname(dirname(__FILE__)) . '/shared/page.php';

$session = signed_in();
ask_device(array('get_fw_settings'));
$settings = answers('get_fw_settings') ? get_fw_settings($session) : settings_one_by_one($session);
$unknown = unknown_parts();
foreach ($unknown as $part => $names) {
    foreach ($names as $name) {
        $settings->$name = '';
    }
}
begin_reading();
$receivers = get_snmp_trap_regs($session);
show('index', array('title' => 'Overview', 'lead' => 'The appliance\'s network at a glance.',
    'settings' => $settings, 'unknown' => $unknown, 'receivers' => could_read() ? count($receivers) : '',
    'restored' => has_facts() ? fact('settings.restored') : restored_settings(), 'alarms' => alarms($settings)));

// Where one question is not answered, the others are.
function settings_one_by_one($session)
{
    $ipv4 = answers('get_network_configuration_ipv4') ? get_network_configuration_ipv4($session)
        : unread(array('ip', 'netmask', 'gateway', 'dhcpEnabled', 'hostname'));
    $ipv6 = answers('get_network_configuration_ipv6') ? get_network_configuration_ipv6($session) : unread(array('staticEnabled'));
    $dns = answers('get_network_dns') ? get_network_dns($session) : unread(array('dnsPrimary', 'dnsSecondary'));
    $port = answers('get_eth2_port_settings') ? get_eth2_port_settings($session)
        : unread(array('AutoNegotiate', 'Speed', 'Duplex'));
    $ssl = get_ssl_settings($session);
    $snmp = get_snmp_settings($session);
    $settings = new stdClass();
    foreach (array($ipv4, $dns, $port) as $part) {
        foreach ($part as $name => $value) {
            $settings->$name = $value;
        }
    }
    $settings->staticEnabled = $ipv6->staticEnabled;
    $settings->ipv6Enabled = is_ipv6_enabled();
    $settings->ipv6DhcpEnabled = is_ipv6_dhcp_enabled();
    $settings->statelessEnabled = answers('is_stateless_enabled') ? is_stateless_enabled() : '';
    $settings->ipv6Addresses = answers('get_all_ipv6_addresses') ? get_all_ipv6_addresses() : '';
    $settings->sslEnabled = $ssl->isEnabled;
    $settings->snmpEnabled = $snmp->version1;
    return $settings;
}

// Of the settings, what the module says it could not read, and what was not asked for because a script hangs: part => names.
function unknown_parts()
{
    $parts = array(
        'name' => array('hostname information', '-g host', array('hostname')),
        'ipv4' => array('IPv4 network information|static IPv4 settings', 'ipv4Manager.sh (-d status|-g static|-g host)',
            array('ip', 'netmask', 'gateway', 'dhcpEnabled')),
        'stateless' => array('stateless settings', '6Manager.sh -l', array('statelessEnabled')),
        'static' => array('static IPv6 settings|IPv6 static address', '6Manager.sh -g static', array('staticEnabled')),
        'addresses' => array('IPv6 address', '-g all', array('ipv6Addresses')),
        'dns' => array('DNS addresses', '-g dns', array('dnsPrimary', 'dnsSecondary')),
        'port' => array('port settings', '-g port', array('AutoNegotiate', 'Speed', 'Duplex')),
        'ssl' => array('SSL settings|App Mgnt config', '', array('sslEnabled')),
        'snmp' => array('SNMP', '', array('snmpEnabled'))
    );
    $unknown = array();
    foreach ($parts as $part => $signs) {
        list($message, $question, $names) = $signs;
        foreach ($GLOBALS['failures'] as $failure) {
            if ($failure['code'] != '' && preg_match("/$message/", $failure['message'])
                || $failure['code'] == '' && $question != '' && preg_match("/$question$/", $failure['place'])) {
                $unknown[$part] = $names;
            }
        }
    }
    return $unknown;
}
