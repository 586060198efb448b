<?php
// Instructions of each reading call in the appliance's own engine: on its processor, emulated, and on this one.
require dirname(__DIR__) . '/helpers.php';

define('FEW', 5);
define('MANY', 25);

// What the engine's host reads: the calls of one function.
function requests($function, $arguments, $times)
{
    $text = serialize($arguments);
    file_put_contents('/tmp/requests', str_repeat("$function " . strlen($text) . "\n$text", $times));
}

// How many instructions the process executes for so many calls. Commands that it starts are processes of their own.
function counted($command, $pattern, $times, $function, $arguments)
{
    requests($function, $arguments, $times);
    file_put_contents('/tmp/counted', '');
    last_line("$command </tmp/requests >/tmp/answers 2>/tmp/counted");
    if (!preg_match_all($pattern, file_get_contents('/tmp/counted'), $found)) {
        fail("$command counted nothing");
    }
    return max(array_map('intval', $found[1]));
}

// Per call: what is there once, such as loading, is in both numbers.
function per_call($command, $pattern, $function, $arguments)
{
    return (counted($command, $pattern, MANY, $function, $arguments) - counted($command, $pattern, FEW, $function, $arguments)) / (MANY - FEW);
}

$power = CHECKOUT . '/build-powerpc';
$native = PROGRAMS . '/native';
$plugin = PROGRAMS . '/count_instructions.so';
$emulated = "qemu-ppc -plugin $plugin -d plugin -L /usr/powerpc-linux-gnu $power/tests/engine_host $power/network.so";
$here = "valgrind --tool=callgrind --callgrind-out-file=/dev/null $native/bench/engine_host $native/network.so";
$session = array(new stdClass());
$groups = array(
    'no command' => array('is_ipv6_enabled' => array(), 'is_ipv6_dhcp_enabled' => array()),
    'one command' => array('get_network_hostname' => array(), 'get_network_dns' => $session, 'is_stateless_enabled' => array(),
        'is_ipv6_static_enabled' => array(), 'get_all_ipv6_addresses' => array(), 'get_eth2_port_settings' => $session),
    'management' => array('get_ssl_settings' => $session, 'get_snmp_settings' => $session, 'get_snmp_trap_regs' => $session),
);
foreach ($groups as $group => $functions) {
    $functions = array_slice($functions, 0, amount(count($functions), 2)); // loading is what takes long
    $ratios = $emulated_counts = $native_counts = array();
    foreach ($functions as $function => $arguments) {
        $emulated_counts[$function] = per_call($emulated, '/instructions: (\d+)/', $function, $arguments);
        $native_counts[$function] = per_call($here, '/Collected : (\d+)/', $function, $arguments);
        $ratios[$function] = $emulated_counts[$function] / $native_counts[$function];
    }
    foreach ($functions as $function => $arguments) {
        row("$function(): instructions", 'the same call natively', 'instr.', null, 'ratio', array($ratios[$function]),
            array($emulated_counts[$function]), array($native_counts[$function]));
    }
    row("most of a call's ratios, group \"$group\"", "the group's median", '', at_most(1.5), 'ratio', array(max($ratios) / median($ratios)),
        array(max($ratios)), array(median($ratios)));
}
