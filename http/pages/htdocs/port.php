<?php
require dirname(dirname(__FILE__)) . '/shared/page.php';

class PortSettings
{
    var $AutoNegotiate;
    var $Speed;
    var $Duplex;
}

$session = signed_in();
$settings = get_eth2_port_settings($session);
$errors = array();
if (is_post()) {
    $settings = new PortSettings();
    $settings->AutoNegotiate = posted('auto') == '1' ? 1 : 0;
    $settings->Speed = (int) posted('speed');
    $settings->Duplex = posted('duplex') == '' ? -1 : (int) posted('duplex');
    $errors = port_errors($settings);
    if (!$errors) {
        begin_change();
        set_eth2_port_settings($session, $settings->AutoNegotiate, $settings->Speed, $settings->Duplex);
        if (!change_failed()) {
            go_to('port.php', 'The Ethernet port is set.');
        }
    }
}
show('port', array('title' => 'Ethernet port', 'settings' => $settings, 'errors' => $errors,
    'lead' => 'The second Ethernet port (eth2). These pages are on the first one, which stays as it is.'));

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
