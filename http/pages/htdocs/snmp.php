<?php
require dirname(dirname(__FILE__)) . '/shared/page.php';
require dirname(dirname(__FILE__)) . '/shared/audit_trail.php';

// What the module reads of the settings; it takes the flags as truth values.
class AgentSettings
{
    var $version1;
    var $trap1;
    var $trap2;
    var $auth_traps_enabled;
    var $community_name;
}

$session = signed_in();
$settings = get_snmp_settings($session);
$facts = $settings; // of these the page shows what no form changes
$errors = array();
if (is_post()) {
    $settings = new AgentSettings();
    $settings->version1 = posted('version1') == '1';
    $settings->trap1 = posted('trap1') == '1';
    $settings->trap2 = posted('trap2') == '1';
    $settings->auth_traps_enabled = posted('auth_traps_enabled') == '1';
    $settings->community_name = posted('community_name');
    $errors = agent_errors($settings);
    if (!$errors) {
        name_user_to_services($session);
        begin_change();
        set_snmp_settings($session, $settings);
        if (!change_failed()) {
            go_to('snmp.php', 'The SNMP agent is set and has restarted.');
        }
    }
}
show('snmp', array('title' => 'SNMP agent', 'settings' => $settings, 'facts' => $facts, 'errors' => $errors,
    'lead' => 'How network management systems read the appliance\'s state, and how it tells them about events.'));

function agent_errors($settings)
{
    $errors = array();
    if (!preg_match('/^[!#-&(-~]{1,32}$/D', $settings->community_name)) {
        $errors['community_name'] = 'Enter 1 to 32 letters, digits or signs, without blanks, quotes and accents.';
    }
    // With none the agent would still be shown with version 1.
    if (!$settings->trap1 && !$settings->trap2) {
        $errors['traps'] = 'Choose at least one.';
    }
    return $errors;
}
