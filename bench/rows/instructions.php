<?php
// Instructions of each call in the appliance's own engine: on its processor, emulated, and on this one.
require dirname(__DIR__) . '/helpers.php';

define('FEW', 6);
define('MANY', 18); // a device has room for 20 trap registrations
define('BIN', '/home/embedded/library/AppManager/bin');

// A call: the function, its arguments (or what makes them of the call's number), what else it needs, by name:
// registrations: so many are there before, 0 else; seconds: so long a worker goes on after the function has returned; alone: it
// changes the database, in which somebody else's turn would be waited for.
function call($function, $arguments, $needs = array())
{
    $needs += array('registrations' => 0, 'seconds' => 0, 'alone' => false);
    return array('function' => $function, 'arguments' => $arguments) + $needs;
}

// What the engine's host reads.
function requests($call, $times)
{
    $text = '';
    for ($number = 1; $number <= $times; $number++) {
        $arguments = serialize($call['arguments'] instanceof Closure ? $call['arguments']($number) : $call['arguments']);
        $text .= "{$call['function']} " . strlen($arguments) . "\n$arguments";
    }
    return $text;
}

// How many instructions each of the programs executes for so many calls, at once: they are counted, not timed. Commands that a
// program starts are processes of their own. $programs: the command line and the pattern of the count that it prints.
function counted($programs, $times, $call)
{
    register_traps($call['registrations']);
    last_line(array('sqlite3', '-cmd', '.timeout 5000', DATABASE, 'DELETE FROM audit')); // which is copied with the settings
    file_put_contents('/tmp/requests', requests($call, $times));
    $begun = $waited = '';
    foreach ($programs as $name => list($command)) {
        $begun .= "{ cat /tmp/requests; sleep {$call['seconds']}; } | $command >/tmp/answers.$name 2>/tmp/counted.$name & $name=$!; ";
        $waited .= ($waited ? ' && ' : '') . "wait \$$name";
    }
    last_line($begun . $waited);
    $counts = array();
    foreach ($programs as $name => list($command, $pattern)) {
        if (!preg_match_all($pattern, file_get_contents("/tmp/counted.$name"), $found)) {
            fail("$command counted nothing");
        }
        $counts[$name] = max(array_map('intval', $found[1]));
    }
    return $counts;
}

// Per call: what is there once, such as loading, is in both numbers.
function per_call($programs, $call)
{
    $many = counted($programs, MANY, $call);
    $few = counted($programs, FEW, $call);
    foreach ($many as $name => $count) {
        $many[$name] = ($count - $few[$name]) / (MANY - FEW);
    }
    return $many;
}

$power = CHECKOUT . '/build-powerpc-tests';
$native = PROGRAMS . '/native';
$plugin = PROGRAMS . '/count_instructions.so';
$emulated = "qemu-ppc -plugin $plugin -d plugin -L /usr/powerpc-linux-gnu $power/tests/engine_host $power/network.so";
$here = "valgrind --tool=callgrind --callgrind-out-file=/dev/null $native/bench/engine_host $native/network.so";

$emulated = array('emulated' => array($emulated, '/instructions: (\d+)/'));
$here = array('here' => array($here, '/Collected : (\d+)/'));

// The rows of a group, and how far the one is from its median that is the furthest above.
function group($name, $calls)
{
    global $emulated, $here;
    $calls = array_slice($calls, 0, amount(count($calls), 1)); // loading is what takes long
    $ratios = array();
    foreach ($calls as $what => $call) {
        $counts = $call['alone'] ? per_call($emulated, $call) + per_call($here, $call) : per_call($emulated + $here, $call);
        $ratios[] = $counts['emulated'] / $counts['here'];
        ratio_row("$what: instructions", 'the same call natively', 'instr.', null, array($counts['emulated']), array($counts['here']));
    }
    $target = QUICK ? null : at_most(1.5); // of one call it is always 1
    row("the highest ratio of a call in the group \"$name\"", "the group's median", '', $target, 'ratio', array(max($ratios) / median($ratios)),
        array(max($ratios)), array(median($ratios)));
}

$session = new stdClass();
group('no command', array(
    'is_ipv6_enabled()' => call('is_ipv6_enabled', array()),
    'get_snmp_trap_regs(), 4' => call('get_snmp_trap_regs', array($session), array('registrations' => 4)),
    'is_ipv6_dhcp_enabled()' => call('is_ipv6_dhcp_enabled', array()),
    'get_ssl_settings()' => call('get_ssl_settings', array($session)),
    'get_snmp_settings()' => call('get_snmp_settings', array($session)),
    'set_ssl_settings(), unchanged' => call('set_ssl_settings', array($session, false)),
));
group('reads by commands', array(
    'get_network_hostname()' => call('get_network_hostname', array()),
    'get_fw_settings()' => call('get_fw_settings', array($session)),
    'get_network_configuration_ipv4()' => call('get_network_configuration_ipv4', array($session)),
    'get_network_configuration_ipv6()' => call('get_network_configuration_ipv6', array($session)),
    'get_network_dns()' => call('get_network_dns', array($session)),
    'is_stateless_enabled()' => call('is_stateless_enabled', array()),
    'is_ipv6_static_enabled()' => call('is_ipv6_static_enabled', array()),
    'get_all_ipv6_addresses()' => call('get_all_ipv6_addresses', array()),
    'get_eth2_port_settings()' => call('get_eth2_port_settings', array($session)),
));

// What a script does is not counted, but would be done: from here on they do nothing, and all changes are new ones.
foreach (array(BIN . '/ipv4Manager.sh', BIN . '/ipv6Manager.sh', BIN . '/applyWebMode.sh', BIN . '/restartSNMP.sh',
    '/home/embedded/library/testTrapRegistration.sh') as $script) {
    file_put_contents($script, "exit 0\n");
}
$ipv4 = (object) array('hostname' => 'another', 'ip' => '192.0.2.7', 'netmask' => '255.255.255.0', 'gateway' => '192.0.2.1');
$ipv6 = (object) array('staticEnabled' => '1', 'ipStatic' => '2001:db8::7', 'prefix' => '64', 'gateway' => '2001:db8::1');
$dns = (object) array('dnsPrimary' => '192.0.2.53', 'dnsSecondary' => '192.0.2.54');
group('changes by commands', array(
    'set_network_dns()' => call('set_network_dns', array($session, $dns)),
    'set_eth2_port_settings()' => call('set_eth2_port_settings', array($session, 0, 100, 1)),
    'set_network_hostname()' => call('set_network_hostname', array($session, 'another')),
    'set_ipv6_enabled()' => call('set_ipv6_enabled', array($session, true)),
    'set_stateless_enabled()' => call('set_stateless_enabled', array($session, true)),
    'set_ipv6_dhcp_enabled()' => call('set_ipv6_dhcp_enabled', array($session, true)),
    'restart_snmp()' => call('restart_snmp', array($session)),
    'set_network_configuration_ipv4()' => call('set_network_configuration_ipv4', array($session, $ipv4), array('seconds' => 5)),
    'set_network_configuration_ipv6()' => call('set_network_configuration_ipv6', array($session, $ipv6), array('seconds' => 2)),
));
$snmp = (object) array('version1' => true, 'trap1' => true, 'trap2' => false, 'auth_traps_enabled' => false, 'community_name' => 'public');
group('changes in the database', array(
    'create_snmp_trap_reg()' => call('create_snmp_trap_reg', function ($number) use ($session) {
        return array($session, 1, '192.0.2.1', (string) $number);
    }, array('alone' => true)),
    'delete_snmp_trap_reg()' => call('delete_snmp_trap_reg', function ($number) use ($session) {
        return array($session, sprintf('%08x-%08x-%08x', $number, 2, 3));
    }, array('registrations' => 20, 'alone' => true)),
    'set_ssl_settings()' => call('set_ssl_settings', function ($number) use ($session) { return array($session, $number % 2 == 1); },
        array('alone' => true)),
    'set_snmp_settings()' => call('set_snmp_settings', array($session, $snmp), array('alone' => true)),
));
