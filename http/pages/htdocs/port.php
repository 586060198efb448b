<?php
require dirname(dirname(__FILE__)) . '/shared/page.php';
require dirname(dirname(__FILE__)) . '/shared/meanwhile.php';

class PortSettings
{
    var $AutoNegotiate;
    var $Speed;
    var $Duplex;
}

$session = signed_in();
ask_device();
$settings = get_eth2_port_settings($session);
$is_known = could_read();
if (!$is_known) {
    $settings = new PortSettings(); // its numbers stand for nothing then
}
$errors = array();
$meanwhile = array();
$labels = array('auto' => 'Autonegotiation', 'speed' => 'Speed', 'duplex' => 'Duplex');
$seen = $is_known ? values_shown($settings) : array();
if (is_post()) {
    $settings = new PortSettings();
    $settings->AutoNegotiate = posted('auto') == '1' ? 1 : 0;
    // With autonegotiation these fields are not used: the port may agree on the most that it can.
    $settings->Speed = $settings->AutoNegotiate ? 100 : (int) posted('speed');
    $settings->Duplex = $settings->AutoNegotiate ? 1 : (posted('duplex') == '' ? -1 : (int) posted('duplex'));
    $errors = port_errors($settings);
    $meanwhile = $errors || !$is_known ? array() : changed_meanwhile($seen, $labels);
    if (!$errors && !$meanwhile) {
        if (is_unchanged(values_shown($settings), $seen)) {
            go_to('port.php', UNCHANGED);
        }
        begin_change();
        set_eth2_port_settings($session, $settings->AutoNegotiate, $settings->Speed, $settings->Duplex);
        audit_change($session, 'port', 'Set', 'the Ethernet port', $labels, $seen,
            values_shown($settings));
        if (!change_failed()) {
            go_to('port.php', 'The Ethernet port is set.');
        }
    }
}
show('port', array('title' => 'Ethernet port', 'settings' => $settings, 'errors' => $errors,
    'meanwhile' => $meanwhile, 'seen' => $seen,
    'lead' => 'The second Ethernet port (eth2). These pages are on the first one, which stays as it is.'));

function values_shown($settings)
{
    $duplex = array(-1 => 'not known', 0 => 'Half', 1 => 'Full');
    return array('auto' => $settings->AutoNegotiate ? 'On' : 'Off', 'speed' => $settings->Speed . ' Mbit/s',
        'duplex' => $duplex[$settings->Duplex]);
}

function port_errors($settings)
{
    $errors = array();
    if ($settings->Speed != 10 && $settings->Speed != 100) {
        $errors['speed'] = 'Choose a speed.';
    }
    if ($settings->Duplex != 0 && $settings->Duplex != 1) {
        $errors['duplex'] = 'Choose a duplex mode.';
    }
    return $errors;
}

function port_setting_in_words($seen)
{
    if (!$seen) {
        return unknown();
    }
    return $seen['auto'] == 'On' ? 'Autonegotiation' : h($seen['speed'] . ', '
        . ($seen['duplex'] == 'not known' ? 'duplex unknown' : strtolower($seen['duplex']) . ' duplex'));
}
