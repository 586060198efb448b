<?php
// The rules for settings that are no addresses alone, wherever they come from: a form or a file. As in addresses.php, they are there to
// say what is wrong beside the field; the appliance checks again.

class DnsSettings
{
    var $dnsPrimary;
    var $dnsSecondary;
}

// What the module reads of the settings; it takes the flags as truth values.
class AgentSettings
{
    var $version1;
    var $trap1;
    var $trap2;
    var $auth_traps_enabled;
    var $community_name;
}

function dns_errors($settings)
{
    $errors = array();
    foreach (array('dnsPrimary', 'dnsSecondary') as $field) {
        $error = $settings->$field == '' ? '' : host_error($settings->$field);
        if ($error != '') {
            $errors[$field] = $error;
        }
    }
    if (!$errors && second_server_error($settings->dnsPrimary, $settings->dnsSecondary) != '') {
        $errors['dnsSecondary'] = second_server_error($settings->dnsPrimary, $settings->dnsSecondary);
    }
    if ($settings->dnsPrimary == '' && $settings->dnsSecondary != '') {
        $errors['dnsPrimary'] = 'Enter the only server here and leave the second one empty.';
    }
    return $errors;
}

function agent_errors($settings)
{
    $errors = array();
    if (strlen($settings->community_name) > 32) {
        $errors['community_name'] = 'Too long by ' . (strlen($settings->community_name) - 32) . ': enter 1 to 32 letters, digits or'
            . ' signs.';
    } elseif (!preg_match('/^[!#-&(-~]{1,32}$/D', $settings->community_name)) {
        $errors['community_name'] = 'Enter 1 to 32 letters, digits or signs, without blanks, quotes and accents.';
    }
    // With none the agent would still be shown with version 1.
    if (!$settings->trap1 && !$settings->trap2) {
        $errors['traps'] = 'Choose at least one.';
    }
    return $errors;
}
