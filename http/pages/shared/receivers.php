<?php
// What is said and checked about a receiver of traps.

define('TRAP_PORT', '162');

function receiver_errors($typed)
{
    $errors = array();
    if ($typed['transport'] != '1' && $typed['transport'] != '2') {
        $errors['transport'] = 'Choose UDP or TCP.';
    }
    $error = host_error($typed['ip']);
    if ($error != '') {
        $errors['ip'] = $error;
    }
    if (!preg_match('/^[0-9]{1,5}$/D', $typed['port']) || $typed['port'] < 1 || $typed['port'] > 65535) {
        $errors['port'] = 'Enter a number from 1 to 65535; usual is ' . TRAP_PORT . '.';
    }
    return $errors;
}

// The module adds a receiver even after it has reported a conflict.
function take_back_additions($session, $before, $ip)
{
    foreach (get_snmp_trap_regs($session) as $receiver) {
        if (same_value($receiver->ip, $ip) && !find_receiver($before, $receiver->id)) {
            delete_snmp_trap_reg($session, $receiver->id);
        }
    }
}

function find_receiver($receivers, $id)
{
    foreach ($receivers as $receiver) {
        if ($receiver->id == $id) {
            return $receiver;
        }
    }
    return false;
}

function receiver_text($ip, $port, $transport)
{
    return short_ipv6($ip) . ', port ' . (int) $port . ', ' . ($transport == 1 ? 'UDP' : ($transport == 2 ? 'TCP'
        : 'transport ' . $transport));
}
