<?php
require dirname(dirname(__FILE__)) . '/shared/page.php';

define('TRAP_PORT', '162');

$session = signed_in();
$typed = array('transport' => '1', 'ip' => '', 'port' => TRAP_PORT);
$errors = array();
if (is_post()) {
    $change = posted('change');
    if ($change == 'test') {
        test_receivers($session);
    } elseif ($change == 'delete') {
        delete_receiver($session, posted('id'));
    } else {
        $typed = array('transport' => posted('transport'), 'ip' => posted('ip'), 'port' => posted('port'));
        $errors = receiver_errors($typed);
        if (!$errors) {
            $errors = add_receiver($session, $typed);
        }
    }
}
show('traps', array('title' => 'Trap receivers', 'receivers' => get_snmp_trap_regs($session), 'typed' => $typed,
    'errors' => $errors, 'lead' => 'The systems to which the SNMP agent reports events.'));

function test_receivers($session)
{
    begin_change();
    restart_snmp($session);
    if (!change_failed()) {
        go_to('traps.php', 'A test trap was sent to every receiver. Look there whether it has arrived.');
    }
}

function delete_receiver($session, $id)
{
    $receiver = find_receiver(get_snmp_trap_regs($session), $id);
    if (!$receiver) {
        go_to('traps.php', 'This receiver is not in the list any more.');
    }
    delete_snmp_trap_reg($session, $id);
    if (find_receiver(get_snmp_trap_regs($session), $id)) {
        refuse('500 Internal Server Error', 'Nothing was changed', 'The appliance did not delete the receiver '
            . $receiver->ip . '.');
    }
    go_to('traps.php', 'The receiver ' . $receiver->ip . ' is deleted.');
}

// Goes back to the list when the receiver was added, else says what is wrong.
function add_receiver($session, $typed)
{
    $before = get_snmp_trap_regs($session);
    begin_change();
    create_snmp_trap_reg($session, (int) $typed['transport'], $typed['ip'], $typed['port']);
    if (!change_failed()) {
        go_to('traps.php', 'The receiver ' . $typed['ip'] . ' is added.');
    }
    if (!is_internal_address()) {
        return array();
    }
    take_back_additions($session, $before, $typed['ip']);
    return array('ip' => 'This address is used inside the appliance. Choose one of your own network.');
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
