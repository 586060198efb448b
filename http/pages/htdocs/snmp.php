<?php
require dirname(dirname(__FILE__)) . '/shared/page.php';
require dirname(dirname(__FILE__)) . '/shared/meanwhile.php';
require dirname(dirname(__FILE__)) . '/shared/settings_rules.php';

// What a form shows => its label.
$labels = array('version1' => 'Versions 1 and 2c', 'community' => 'Read community', 'trap1' => 'Traps of version 1',
    'trap2' => 'Traps of version 2c', 'auth' => 'Trap about a wrong community');

$session = signed_in();
ask_device();
$settings = get_snmp_settings($session);
$is_known = could_read() && !services_unreadable();
if (!may_change($session)) {
    $settings->community_name = ''; // a password: not in the page, wherever that has its values
}
$agent = $settings; // of these the page shows what no form changes
$errors = array();
$meanwhile = array();
$seen = $is_known ? values_shown($settings) : array();
if (!$is_known) {
    $settings = new AgentSettings();
}
if (is_post()) {
    $settings = new AgentSettings();
    $settings->version1 = posted('version1') == '1';
    $settings->trap1 = posted('trap1') == '1';
    $settings->trap2 = posted('trap2') == '1';
    $settings->auth_traps_enabled = posted('auth_traps_enabled') == '1';
    $settings->community_name = posted('community_name');
    $errors = agent_errors($settings);
    $meanwhile = $errors || !$is_known ? array() : changed_meanwhile($seen, $labels);
    if (!$errors && !$meanwhile) {
        // After a failure it is stored, but the agent may not run with it.
        if (posted('again') != '1' && is_unchanged(values_shown($settings), $seen)) {
            go_to('snmp.php', UNCHANGED);
        }
        name_user_to_services($session);
        begin_change();
        set_snmp_settings($session, $settings);
        audit_change($session, 'snmp', 'Set', 'the SNMP agent', $labels, $seen, values_shown($settings));
        if (!change_failed()) {
            go_to('snmp.php', 'The SNMP agent is set and has restarted.');
        }
        $seen = values_shown(get_snmp_settings($session));
    }
}
show('snmp', array('title' => 'SNMP agent', 'settings' => $settings, 'agent' => $agent, 'is_known' => $is_known, 'errors' => $errors, 'meanwhile' => $meanwhile,
    'seen' => $seen,
    'shows_community' => may_change($session),
    'lead' => 'How network management systems read the appliance\'s state, and how it tells them about events.'));

function values_shown($settings)
{
    return array('version1' => $settings->version1 ? 'On' : 'Off', 'trap1' => $settings->trap1 ? 'On' : 'Off',
        'trap2' => $settings->trap2 ? 'On' : 'Off', 'auth' => $settings->auth_traps_enabled ? 'On' : 'Off',
        'community' => $settings->community_name);
}
