<?php
// Calls a function of the module as a page does: call_function.php FUNCTION [JSON...], the arguments behind the session.
// Says each warning on a line of standard error and ends with 1 when there was one. Nothing is called with an empty
// text. "read" as the function: what the readers give, a line each.

$session = new stdClass;
$session->user = 'tester';
$warnings = 0;
set_error_handler(function ($level, $message) use (&$warnings) {
    fwrite(STDERR, "call_function.php: $message\n");
    $warnings++;
    return true;
});

function read_all($session)
{
    $receivers = array();
    foreach (get_snmp_trap_regs($session) as $registration) $receivers[] = $registration->ip;
    $snmp = get_snmp_settings($session);
    echo 'ssl=', json_encode(get_ssl_settings($session)->isEnabled), "\n";
    echo 'community=', $snmp->community_name, "\n";
    echo 'versions=', json_encode(array($snmp->version1, $snmp->version2, $snmp->version3, $snmp->trap1, $snmp->trap2)), "\n";
    echo 'auth=', json_encode($snmp->auth_traps_enabled), "\n";
    echo 'receivers=', implode(',', $receivers), "\n";
}

if ($argv[1] == 'read') {
    read_all($session);
} else {
    $arguments = array($session);
    foreach (array_slice($argv, 2) as $text) $arguments[] = json_decode($text);
    if (!in_array('', $arguments, true)) call_user_func_array($argv[1], $arguments);
}
exit($warnings ? 1 : 0);
