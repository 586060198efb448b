<?php
// Functions that ask the management services, beside bare SQLite reads of the same rows.
require dirname(__DIR__) . '/helpers.php';

define('DATABASE', '/home/embedded/library/CoreService/dat/management.db');
$times = amount(5000, 500);
$rounds = amount(15, 3);
$ssl = array('SELECT ssl_enabled FROM settings');
$snmp = array('SELECT version FROM snmp_versions ORDER BY version', 'SELECT auth_traps_enabled FROM settings',
    'SELECT read_community FROM settings');
$traps = array('SELECT identifier, transport, address, port FROM trap_registrations ORDER BY number');

// Beside the rows, and beside the rows and as many bare lines as the function writes into the trace and the error log.
function beside_rows($what, $function, $queries)
{
    global $times, $rounds;
    file_put_contents(TRACE_LOG, '');
    calls($function, 1)(); // which calls twice
    $lines = (int) (count(file(TRACE_LOG)) / 2);
    $errors = (int) (count(file(ERRORS)) / 2);
    $samples = in_turn(array(calls($function, $times), program('rows_of_sqlite', $times, 0, 0, ...$queries),
        program('rows_of_sqlite', $times, $lines, $errors, ...$queries)), $rounds);
    ratio_row($what, 'SQLite reads', 'ns', at_most(1.3), $samples[0], $samples[1]);
    ratio_row("... $what", "SQLite reads, $lines bare lines of the trace" . ($errors ? ", $errors of the error log" : ''), 'ns', null, $samples[0], $samples[2]);
    return $samples[0];
}

function register_traps($count)
{
    $commands = 'DELETE FROM trap_registrations;';
    for ($number = 1; $number <= $count; $number++) {
        $commands .= "INSERT INTO trap_registrations (identifier, transport, address, port)"
            . " VALUES (printf('%08x-%08x-%08x', $number, 2, 3), 1, '192.0.2.$number', 162);";
    }
    last_line(array('sqlite3', '-cmd', '.timeout 5000', DATABASE, $commands));
}

beside_rows('get_ssl_settings()', 'get_ssl_settings', $ssl);
beside_rows('get_snmp_settings()', 'get_snmp_settings', $snmp);
$samples = array();
foreach (array(0, 4, 5, 20) as $count) {
    register_traps($count);
    $samples[$count] = beside_rows("get_snmp_trap_regs(), $count", 'get_snmp_trap_regs', $traps);
}
register_traps(0);
// Linear: what one registration more costs from 5 to 20, beside what it costs from 0 to 5.
$slope = function ($from, $to) use ($samples) {
    return (median($samples[$to]) - median($samples[$from])) / ($to - $from);
};
ratio_row('one trap registration more, 5 to 20', '0 to 5', 'ns', at_most(1.3), array($slope(5, 20)), array($slope(0, 5)));
