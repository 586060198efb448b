<?php
// What the Overview page asks the module for, in plain PHP with shell_exec: the same scripts, one after the other, and the same
// fields. Nothing is traced, the scripts are called without the wrapper, and rows come by the program sqlite3, as a page
// without an extension for SQLite reads them; in $given_rows, by query, they are there already.

function plain_read($script, $options)
{
    return rtrim((string) shell_exec("/bin/sh /home/embedded/library/AppManager/bin/$script $options"), "\r\n");
}

function plain_row($query)
{
    global $given_rows;
    if (isset($given_rows[$query])) {
        return $given_rows[$query];
    }
    return rtrim((string) shell_exec("sqlite3 -readonly /home/embedded/library/CoreService/dat/management.db '$query'"), "\n");
}

function plain_fw_settings()
{
    $settings = new stdClass();
    $settings->hostname = plain_read('ipv4Manager.sh', '-g host');
    $lease = plain_read('ipv4Manager.sh', '-d status');
    $settings->dhcpEnabled = $lease != '??';
    list($settings->ip, $settings->netmask, $settings->gateway) = explode('?',
        $settings->dhcpEnabled ? $lease : plain_read('ipv4Manager.sh', '-g static'));
    $settings->statelessEnabled = plain_read('ipv6Manager.sh', '-l') == '1';
    $settings->ipv6Enabled = is_readable('/home/embedded/library/CoreService/dat/ipv6Enabled');
    $settings->ipv6DhcpEnabled = is_readable('/etc/ipv6dhcp');
    $fixed = preg_split('#[/?]#', plain_read('ipv6Manager.sh', '-g static'));
    $settings->staticEnabled = count($fixed) == 3;
    list($settings->ipStatic, $settings->prefix, $settings->ipv6Gateway) = $settings->staticEnabled ? $fixed
        : array('0:0:0:0:0:0:0:0', '64', '0:0:0:0:0:0:0:0');
    $addresses = plain_read('ipv6Manager.sh', '-g all');
    $settings->ipv6Addresses = $addresses == '' ? array() : explode('?', $addresses);
    list($settings->dnsPrimary, $settings->dnsSecondary) = explode(' ', plain_read('ipv6Manager.sh', '-g dns') . ' ');
    if ($settings->dnsPrimary == 'disabled') {
        $settings->dnsPrimary = '';
    }
    $settings->sslEnabled = plain_row('SELECT ssl_enabled FROM settings') == '1';
    $settings->snmpEnabled = plain_row('SELECT 1 FROM snmp_versions WHERE version = 1') == '1';
    list($autonegotiation, $speed, $duplex) = explode('?', plain_read('ipv4Manager.sh', '-g port'));
    $settings->AutoNegotiate = $autonegotiation == 'on' ? 1 : 0;
    $settings->Speed = $speed == '10' ? 10 : 100;
    $settings->Duplex = $duplex == 'full' ? 1 : 0;
    return $settings;
}

function plain_snmp_trap_regs()
{
    $registrations = array();
    $rows = plain_row('SELECT identifier, transport, address, port FROM trap_registrations ORDER BY number');
    foreach ($rows == '' ? array() : explode("\n", $rows) as $row) {
        list($id, $transport, $ip, $port) = explode('|', $row);
        $registrations[] = (object) array('transport' => (int) $transport, 'ip' => $ip, 'port' => (int) $port, 'id' => $id);
    }
    return $registrations;
}
