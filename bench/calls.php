<?php
// calls.php FUNCTION TIMES: calls the function so many times and prints how many nanoseconds one call took. Besides the
// module's functions there are those below, which do the same in plain PHP.

require_once __DIR__ . '/helpers.php';

// As a page would do it that has only PHP: the same lines of the trace, the same look for the file.
function plain_trace($message, $extra = '')
{
    $time = microtime(true);
    file_put_contents(TRACE_LOG, sprintf("TRACE[%s.%03d %s]:%s:<%s>\n",
        date('Y-m-d H:i:s', (int) $time), ($time - floor($time)) * 1000, date('O', (int) $time), $message, $extra), FILE_APPEND);
}

function plain_is_ipv6_enabled()
{
    plain_trace('Entering is_ipv6_enabled');
    $file = @fopen('/home/embedded/library/CoreService/dat/ipv6Enabled', 'r');
    plain_trace($file ? 'IPv6 was enabled' : 'IPv6 was NOT enabled');
    plain_trace('Exiting is_ipv6_enabled');
    return (bool) $file;
}

function plain_is_ipv6_dhcp_enabled()
{
    plain_trace('Entering is_ipv6_dhcp_enabled');
    $file = @fopen('/etc/ipv6dhcp', 'r');
    plain_trace($file ? 'IPv6 DHCP was enabled' : 'IPv6 DHCP was NOT enabled');
    plain_trace('Exiting is_ipv6_dhcp_enabled');
    return (bool) $file;
}

function plain_command($script, $options)
{
    return rtrim((string) shell_exec('/usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/'
        . "$script $options"), "\r\n");
}

function plain_get_network_hostname()
{
    plain_trace('Entering get_network_hostname');
    $name = plain_command('ipv4Manager.sh', '-g host');
    plain_trace('Output = ', $name);
    plain_trace('Exiting get_network_hostname');
    return $name;
}

function plain_get_network_configuration_ipv4()
{
    plain_trace('Entering get_network_configuration_ipv4');
    $lease = plain_command('ipv4Manager.sh', '-d status');
    plain_trace('Output1 = ', $lease);
    $is_dhcp = $lease != '??';
    if (!$is_dhcp) {
        $lease = plain_command('ipv4Manager.sh', '-g static');
        plain_trace('Output2 = ', $lease);
    }
    $parts = explode('?', $lease);
    $name = plain_command('ipv4Manager.sh', '-g host');
    plain_trace('Output3 = ', $name);
    plain_trace('Exiting get_network_configuration_ipv4');
    return (object) array('hostname' => $name, 'dhcpEnabled' => $is_dhcp, 'ip' => $parts[0], 'gateway' => $parts[2],
        'netmask' => $parts[1]);
}

function plain_get_network_dns()
{
    plain_trace('Entering get_network_dns');
    $servers = explode(' ', plain_command('ipv6Manager.sh', '-g dns'));
    plain_trace('Exiting get_network_dns');
    return (object) array('dnsPrimary' => $servers[0] == 'disabled' ? '' : $servers[0],
        'dnsSecondary' => isset($servers[1]) ? $servers[1] : '');
}

// The rows of a query, by a connection that stays open, as the module's does.
function plain_rows($query)
{
    static $database = null;
    if ($database === null) {
        $database = new SQLite3(DATABASE, SQLITE3_OPEN_READWRITE);
        $database->enableExceptions(true);
        $database->busyTimeout(5000);
    }
    $result = $database->query($query);
    $rows = array();
    while ($result->numColumns() > 0 && $row = $result->fetchArray(SQLITE3_NUM)) {
        $rows[] = $row;
    }
    $result->finalize();
    return $rows;
}

function plain_get_ssl_settings()
{
    plain_trace('Entering get_ssl_settings');
    plain_trace('Before slp->getAppMgmtConfigInterface()');
    $rows = plain_rows('SELECT ssl_enabled FROM settings');
    plain_trace('Exiting get_ssl_settings');
    return (object) array('isEnabled' => (bool) $rows[0][0], 'port' => 443, 'cipher' => 'RSA');
}

function plain_get_snmp_settings()
{
    plain_trace('Entering get_snmp_settings');
    plain_trace('Before slp->getAppMgmtConfigInterface()');
    $versions = array_column(plain_rows('SELECT version FROM snmp_versions ORDER BY version'), 0);
    plain_trace('Found # of versions:', count($versions));
    foreach ($versions as $version) {
        plain_trace('Found version:', $version);
    }
    $traps = plain_rows('SELECT auth_traps_enabled FROM settings');
    plain_trace('SNMP auth traps are enabled:', $traps[0][0]);
    $community = plain_rows('SELECT read_community FROM settings');
    plain_trace('SNMP community:', $community[0][0]);
    $settings = (object) array('version1' => in_array(1, $versions), 'version2' => in_array(2, $versions),
        'version3' => in_array(3, $versions), 'trap1' => in_array(4, $versions), 'trap2' => in_array(5, $versions),
        'algorithm' => 'MD5', 'encryption' => false, 'port' => 161, 'auth_traps_enabled' => (bool) $traps[0][0],
        'community_name' => $community[0][0]);
    plain_trace('Exiting get_snmp_settings');
    return $settings;
}

function plain_get_snmp_trap_regs()
{
    plain_trace('entering get_snmp_trap_regs');
    plain_trace('Before slp->getAppMgmtConfigInterface()');
    $rows = plain_rows('SELECT identifier, transport, address, port FROM trap_registrations ORDER BY number');
    plain_trace('Number of trap registratrations:', count($rows));
    $registrations = array();
    foreach ($rows as $row) {
        fwrite(STDERR, "$row[1] - $row[2] - $row[3] - $row[0]\n");
        $registrations[] = (object) array('transport' => $row[1], 'ip' => $row[2], 'port' => $row[3], 'id' => $row[0]);
    }
    plain_trace('Exiting get_snmp_trap_regs');
    return $registrations;
}

// SSL is off here, and stays so.
function plain_unchanged_ssl()
{
    plain_trace('Entering set_ssl_settings');
    plain_trace("NOTE: The HTTP service will be restarted by appmanager in the new SSL Mode\nSetting SSL to ", 'Disabled');
    $rows = plain_rows('SELECT ssl_enabled FROM settings');
    plain_trace('Skipped setting SSL - state did not change.');
    plain_trace('Exiting set_ssl_settings');
    return (bool) $rows[0][0];
}

// A change of the registrations with its row of the audit, and the copy that is kept of the database. (Its folder is not synced:
// PHP has no way to.)
function plain_change($operation, $values, $queries)
{
    plain_rows('BEGIN IMMEDIATE');
    array_map('plain_rows', $queries);
    plain_rows("INSERT INTO audit (user, operation, \"values\", result) VALUES ('', '$operation', '$values', 'stored')");
    plain_rows('COMMIT');
    @unlink(DATABASE . '.fresh');
    plain_rows("VACUUM INTO '" . DATABASE . ".fresh'");
    fsync(fopen(DATABASE . '.fresh', 'r'));
    rename(DATABASE . '.fresh', DATABASE . '.bench');
}

// The same as with_arguments_trap_registration().
function plain_trap_registration()
{
    $id = sprintf('%08x-%08x-%08x', random_int(0, 0xffffffff), random_int(0, 0xffffffff), random_int(0, 0xffffffff));
    plain_trace('entering create_snmp_trap_reg');
    plain_trace('New transport was', 1);
    plain_trace('New Trap IP was', '192.0.2.1');
    plain_trace('New Trap Port was', 162);
    plain_change('createTrapRegistration', "transport 1, address 192.0.2.1, port 162, id $id",
        array('SELECT count(*) FROM trap_registrations',
            "SELECT identifier, address FROM trap_registrations WHERE transport = 1 AND port = 162",
            "INSERT INTO trap_registrations (identifier, transport, address, port) VALUES ('$id', 1, '192.0.2.1', 162)"));
    plain_trace('exiting create_snmp_trap_reg');
    foreach (plain_get_snmp_trap_regs() as $registration) {
        plain_trace('entering delete_snmp_trap_reg');
        plain_change('deleteTrapRegistration', "id $registration->id",
            array("DELETE FROM trap_registrations WHERE identifier = '$registration->id'"));
        plain_trace('exiting delete_snmp_trap_reg');
    }
}

// What the module makes of 20 trap registrations for the page.
function plain_registrations()
{
    $registrations = array();
    for ($number = 0; $number < 20; $number++) {
        $registration = new stdClass();
        $registration->transport = 1;
        $registration->ip = '192.0.2.1';
        $registration->port = 162;
        $registration->id = '00000001-00000002-00000003';
        $registrations[] = $registration;
    }
    return $registrations;
}

// Calls of the module with arguments. SSL is off here.
function with_arguments_unchanged_ssl() { set_ssl_settings(new stdClass(), false); }

function with_arguments_trap_registration()
{
    create_snmp_trap_reg(new stdClass(), 1, '192.0.2.1', '162');
    foreach (get_snmp_trap_regs(new stdClass()) as $registration) {
        delete_snmp_trap_reg(new stdClass(), $registration->id);
    }
}

if (basename($argv[0]) != basename(__FILE__)) {
    return; // for count_calls.php
}
$function = $argv[1];
$arguments = preg_match('/^(is_|get_network_hostname|get_all_|plain_|with_arguments_)/', $function) ? array() : array(new stdClass());
$times = (int) $argv[2];
call_user_func_array($function, $arguments); // the first call opens what stays open
$start = hrtime(true);
for ($time = 0; $time < $times; $time++) {
    call_user_func_array($function, $arguments);
}
printf("%.1f\n", (hrtime(true) - $start) / $times);
