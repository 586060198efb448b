<?php
require dirname(dirname(__FILE__)) . '/shared/page.php';
require dirname(dirname(__FILE__)) . '/shared/meanwhile.php';
require dirname(dirname(__FILE__)) . '/shared/receivers.php';
require dirname(dirname(__FILE__)) . '/shared/trap_results.php';

$session = signed_in();
$results = array();
if (!is_post() && isset($_SESSION['test_results'])) {
    $results = $_SESSION['test_results'];
    if (!is_background()) {
        unset($_SESSION['test_results']); // they are of the moment
    }
}
ask_device();
$typed = array('transport' => '1', 'ip' => '', 'port' => TRAP_PORT);
$errors = array();
$meanwhile = array();
if (is_post()) {
    $change = posted('change');
    if ($change != 'test' && $change != 'delete') {
        $typed = array('transport' => posted('transport'), 'ip' => posted('ip'), 'port' => posted('port'));
    }
    if ($change == 'test') {
        $results = test_receivers($session);
    } elseif (services_unreadable()) {
        $errors = array('ip' => 'Which receivers there are cannot be read. Try again.');
    } elseif ($change == 'delete') {
        $meanwhile = delete_receiver($session, posted('id'));
    } else {
        $errors = receiver_errors($typed);
        $meanwhile = $errors ? array() : receivers_changed(get_snmp_trap_regs($session));
        if (!$errors && !$meanwhile) {
            $errors = add_receiver($session, $typed);
        }
    }
}
ask_device();
begin_reading();
$receivers = get_snmp_trap_regs($session);
$is_known = could_read() && !services_unreadable();
show('traps', array('title' => 'Trap receivers', 'receivers' => $receivers, 'is_known' => $is_known, 'typed' => $typed,
    'seen' => $is_known ? receivers_shown($receivers) : array(), 'meanwhile' => $meanwhile, 'errors' => $errors,
    'results' => $results,
    'lead' => 'The systems to which the SNMP agent reports events.'));

// What became of it is shown beside each receiver: goes back to the list, or returns it.
function test_receivers($session)
{
    $began = time();
    begin_change();
    restart_snmp($session);
    $results = results_of_test($began);
    $texts = outcomes_for_audit($results);
    audit_change($session, 'traps', 'Send', 'a test trap to every receiver', labels_of($texts), array(), $texts);
    if (!change_failed()) {
        return_to_session();
        $_SESSION['test_results'] = $results;
        go_to('traps.php', $results ? 'A test trap was sent to every receiver: what became of it stands beside each.'
            : 'A test trap was sent to every receiver. Look there whether it has arrived.');
    }
    return $results;
}

function labels_of($values)
{
    $labels = array();
    foreach ($values as $name => $value) {
        $labels[$name] = $name;
    }
    return $labels;
}

// What the list shows of each: its number => text.
function receivers_shown($receivers)
{
    $shown = array();
    foreach ($receivers as $receiver) {
        $shown[$receiver->id] = receiver_text($receiver->ip, $receiver->port, $receiver->transport);
    }
    return $shown;
}

// What is no longer as the form's list was: rows for meanwhile_message(). A number may be another receiver's by now.
function receivers_changed($receivers)
{
    $now = receivers_shown($receivers);
    $labels = array();
    foreach (array_merge(array_keys($now), array_keys(seen_values())) as $id) {
        $labels[$id] = 'Receiver';
    }
    // An empty list is one that was seen, too.
    return text_of($_POST, 'listed') == '' ? array() : rows_changed($labels, seen_values(), $now);
}

// Returns what has become of the receiver meanwhile, when it is another one.
function delete_receiver($session, $id)
{
    $receiver = find_receiver(get_snmp_trap_regs($session), $id);
    if (!$receiver) {
        go_to('traps.php', 'This receiver is not in the list any more.');
    }
    $meanwhile = changed_meanwhile(receivers_shown(array($receiver)), array($receiver->id => 'Receiver'));
    if ($meanwhile) {
        return $meanwhile;
    }
    begin_change();
    delete_snmp_trap_reg($session, $id);
    $is_there = find_receiver(get_snmp_trap_regs($session), $id);
    audit_change($session, 'traps', 'Delete', 'the trap receiver '
        . receiver_text($receiver->ip, $receiver->port, $receiver->transport), array(), array(), array(),
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
    if (in_array(receiver_text($typed['ip'], $typed['port'], $typed['transport']), receivers_shown($before))) {
        go_to('traps.php', UNCHANGED);
    }
    begin_change();
    create_snmp_trap_reg($session, (int) $typed['transport'], $typed['ip'], $typed['port']);
    audit_change($session, 'traps', 'Add', 'the trap receiver '
        . receiver_text($typed['ip'], $typed['port'], $typed['transport']));
    if (!change_failed()) {
        go_to('traps.php', 'The receiver ' . $typed['ip'] . ' is added.');
    }
    if (!is_internal_address()) {
        return array();
    }
    take_back_additions($session, $before, $typed['ip']);
    return array('ip' => 'This address is used inside the appliance. Choose one of your own network.');
}
