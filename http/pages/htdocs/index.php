<?php
require dirname(dirname(__FILE__)) . '/shared/page.php';

$session = signed_in();
show('index', array('title' => 'Overview', 'lead' => 'The appliance\'s network at a glance.',
    'settings' => get_fw_settings($session), 'receivers' => count(get_snmp_trap_regs($session)),
    'restored' => restored_settings()));
