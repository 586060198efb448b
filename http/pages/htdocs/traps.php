<?php
require dirname(dirname(__FILE__)) . '/shared/page.php';
require dirname(dirname(__FILE__)) . '/shared/trap_results.php';

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
$results = isset($_SESSION['test_results']) ? $_SESSION['test_results'] : array();
if (!is_background()) {
    unset($_SESSION['test_results']); // they are of the moment
}
show('traps', array('title' => 'Trap receivers', 'receivers' => get_snmp_trap_regs($session), 'typed' => $typed,
    'errors' => $errors, 'results' => $results, 'lead' => 'The systems to which the SNMP agent reports events.'));

// What became of it is shown beside each receiver.
function test_receivers($session)
{
    $began = time();
    begin_change();
    restart_snmp($session);
    $results = results_of_test($began);
    $texts = array();
    foreach ($results as $receiver => $result) {
        $texts[$receiver] = outcome_of_trap($result);
    }
    audit_change($session, 'traps', 'Send', 'a test trap to every receiver', labels_of($texts), array(), $texts);
    return_to_session();
    $_SESSION['test_results'] = $results;
    if (!change_failed()) {
        go_to('traps.php', $results ? 'A test trap was sent to every receiver: what became of it stands beside each.'
            : 'A test trap was sent to every receiver. Look there whether it has arrived.');
    }
}

function labels_of($values)
{
    $labels = array();
    foreach ($values as $name => $value) {
        $labels[$name] = $name;
    }
    return $labels;
}

function delete_receiver($session, $id)
{
    $receiver = find_receiver(get_snmp_trap_regs($session), $id);
    if (!$receiver) {
        go_to('traps.php', 'This receiver is not in the list any more.');
    }
    begin_change();
    delete_snmp_trap_reg($session, $id);
    $is_there = find_receiver(get_snmp_trap_regs($session), $id);
    audit_change($session, 'traps', 'Delete', 'the trap receiver '
        . name_of_receiver($receiver->ip, $receiver->port, $receiver->transport), array(), array(), array(),
        $is_there ? 'the appliance did not delete it' : '');
    if ($is_there) {
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
    audit_change($session, 'traps', 'Add', 'the trap receiver '
        . name_of_receiver($typed['ip'], $typed['port'], $typed['transport']));
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

function name_of_receiver($ip, $port, $transport)
{
    return $ip . ', port ' . $port . ($transport == 2 ? ' by TCP' : ' by UDP');
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
