<?php
// Functions that ask the management services, beside bare SQLite reads of the same rows, and beside the same in plain PHP.
require dirname(__DIR__) . '/helpers.php';

$times = amount(3000, 500);
$rounds = amount(15, 3);
$ssl = array('SELECT ssl_enabled FROM settings');
$snmp = array('SELECT version FROM snmp_versions ORDER BY version', 'SELECT auth_traps_enabled FROM settings',
    'SELECT read_community FROM settings');
$traps = array('SELECT identifier, transport, address, port FROM trap_registrations ORDER BY number');

// How many entries a call writes into the trace, and lines into the error log.
function lines_of($function)
{
    file_put_contents(TRACE_LOG, '');
    calls($function, 1)(); // which calls twice
    return array((int) (substr_count(file_get_contents(TRACE_LOG), 'TRACE[') / 2), (int) (count(file(ERRORS)) / 2));
}

function in_words($lines, $errors) { return "$lines bare lines of the trace" . ($errors ? ", $errors of the error log" : ''); }

// Beside the rows, and beside all that the function asks of the kernel: as many bare lines as it writes, too.
function beside_rows($what, $function, $queries)
{
    global $times, $rounds;
    list($lines, $errors) = lines_of($function);
    $samples = in_turn(array(calls($function, $times), program('rows_of_sqlite', $times, 0, 0, ...$queries),
        program('rows_of_sqlite', $times, $lines, $errors, ...$queries), calls("plain_$function", $times)), $rounds);
    ratio_row($what, 'SQLite reads', 'ns', at_most(1.3), $samples[0], $samples[1]);
    ratio_row("$what, all of it", 'SQLite reads, ' . in_words($lines, $errors), 'ns', at_most(1.25), $samples[0], $samples[2]);
    ratio_row("$what, all of it", 'plain PHP with its own SQLite', 'ns', at_most(0.8), $samples[0], $samples[3]);
}

// How many instructions, outside of the kernel, a call of the module's function executes in some functions and in what they call: a
// function of their pattern.
function instructions_of_call($function, $times)
{
    $profile = WORK . '/profile';
    last_line(array_merge(array('valgrind', '--tool=callgrind', "--callgrind-out-file=$profile", "--toggle-collect=zif_$function*"),
        interpreter(true), array(dirname(__DIR__) . '/calls.php', $function, (string) $times)));
    $annotated = (string) shell_exec("callgrind_annotate --inclusive=yes '$profile' 2>&1");
    return function ($functions) use ($annotated, $times) {
        if (!preg_match_all("/^ *([0-9,]+) \\([^)]*\\) +[^:]*:$functions(?:\\(| )/m", $annotated, $found)) {
            fail("no instructions of $functions were counted");
        }
        return array_sum(str_replace(',', '', $found[1])) / ($times + 1); // which calls once before
    };
}

// The same of one time of the program beside it.
function instructions_of_rows($lines, $errors, $queries)
{
    $count = function ($times) use ($lines, $errors, $queries) {
        last_line(array_merge(array('valgrind', '--tool=callgrind', '--callgrind-out-file=/dev/null', PROGRAMS . '/rows_of_sqlite',
            (string) $times, (string) $lines, (string) $errors), $queries));
        preg_match('/Collected : ([1-9]\d*)/', file_get_contents(ERRORS), $found);
        return $found ? (int) $found[1] : fail('valgrind counted nothing');
    };
    return ($count(amount(150, 15)) - $count(amount(50, 5))) / amount(100, 10);
}

// Beside the same for a change: $name, as calls.php has it for the module and for plain PHP.
function beside_the_same($what, $name, $times, $queries, $in_words)
{
    global $rounds;
    list($lines, $errors) = lines_of("with_arguments_$name");
    $samples = in_turn(array(calls("with_arguments_$name", $times), program('rows_of_sqlite', $times, $lines, $errors, ...$queries),
        calls("plain_$name", $times)), $rounds);
    ratio_row($what, "$in_words, " . in_words($lines, $errors), 'ns', at_most(1.25), $samples[0], $samples[1]);
    ratio_row($what, 'plain PHP with its own SQLite', 'ns', at_most(0.8), $samples[0], $samples[2]);
}

beside_rows('get_ssl_settings()', 'get_ssl_settings', $ssl);
beside_rows('get_snmp_settings()', 'get_snmp_settings', $snmp);
foreach (array(0, 4, 5, 20) as $count) {
    register_traps($count);
    beside_rows("get_snmp_trap_regs(), $count", 'get_snmp_trap_regs', $traps);
}
// Where the time of 20 goes: reading them by the management library, and making the page's values of them.
compare('... 20 trap registrations by the management library', 'SQLite reads', 'ns', null, program('registrations', $times),
    program('rows_of_sqlite', $times, 0, 0, ...$traps), $rounds);
compare('... 20 objects of four properties in PHP', 'get_snmp_trap_regs(), 20', 'ns', null, calls('plain_registrations', $times),
    calls('get_snmp_trap_regs', $times), $rounds);
// Counted, which no other work on the machine changes.
$call = instructions_of_call('get_snmp_trap_regs', amount(200, 5));
list($lines, $errors) = lines_of('get_snmp_trap_regs');
$all = instructions_of_rows($lines, $errors, $traps);
$reads = instructions_of_rows(0, 0, $traps);
$counted = function ($what, $beside, $ours, $theirs) {
    ratio_row("... $what, instructions", $beside, 'instr.', null, array($ours), array($theirs));
};
$counted('get_snmp_trap_regs(), 20', 'SQLite reads, ' . in_words($lines, $errors), $call('zif_get_snmp_trap_regs'), $all);
$counted('of that, the management library', 'SQLite reads', $call('Velm::AppConfig::getTrapRegistrations'), $reads);
$counted('of that, the error log', in_words($lines, $errors), $call('__fprintf_chk'), $all - $reads);
value_row('... of that, the properties, instructions', 'instr.', null, array($call('add(?:String|Integer)')));
value_row('... an identifier turned into text', 'ns', null, google_samples('^IdentifierText$', 'cpu_time')['IdentifierText']);
// Linear: what one registration more costs from 10 to 20, beside what it costs from 0 to 10.
$with_registrations = function ($count) use ($times) {
    $measure = calls('get_snmp_trap_regs', $times);
    return function () use ($count, $measure) {
        register_traps($count);
        return $measure();
    };
};
$samples = in_turn(array(0 => $with_registrations(0), 10 => $with_registrations(10), 20 => $with_registrations(20)), $rounds);
$each = function ($more, $less) { return ($more - $less) / 10; };
ratio_row('one trap registration more, 10 to 20', '0 to 10', 'ns', at_most(1.3), array_map($each, $samples[20], $samples[10]),
    array_map($each, $samples[10], $samples[0]));
register_traps(0);

// Changes that run no command.
beside_the_same('set_ssl_settings(), unchanged', 'unchanged_ssl', $times, $ssl, 'SQLite reads');
$change = function ($operation, $values, ...$queries) {
    return array_merge(array('BEGIN IMMEDIATE'), $queries, array('INSERT INTO audit (user, operation, "values", result)'
        . " VALUES ('', '$operation', '$values', 'stored')", 'COMMIT', 'COPY'));
};
$place = 'transport 1, address 192.0.2.1, port 162';
$id = '00000001-00000002-00000003';
last_line(array('sqlite3', '-cmd', '.timeout 5000', DATABASE, 'DELETE FROM audit'));
beside_the_same('create_snmp_trap_reg(), get_, delete_', 'trap_registration', amount(20, 3),
    array_merge($change('createTrapRegistration', "$place, id $id", 'SELECT count(*) FROM trap_registrations',
        'SELECT identifier, address FROM trap_registrations WHERE transport = 1 AND port = 162', 'INSERT INTO trap_registrations'
        . " (identifier, transport, address, port) VALUES ('$id', 1, '192.0.2.1', 162)"),
        $traps, $change('deleteTrapRegistration', "id $id", "DELETE FROM trap_registrations WHERE identifier = '$id'")),
    'the same changes and copies by SQLite');
