<?php
// The audit trail of the management services: who changed web security, SNMP and trap receivers.

define('AUDIT_COMMAND', '/bin/sh ' . APPLIANCE_FOLDER . '/AppManager/bin/auditTrail.sh');
define('RECORD_SEPARATOR', "\x1e");
define('FIELD_SEPARATOR', "\x1f");

// The newest changes, newest first: each an array of 'time', 'user', 'operation', 'values' and 'result', which is "stored",
// or "refused: " and the reason; false when they cannot be read.
function audit_entries()
{
    $status = 0;
    $lines = array();
    exec(AUDIT_COMMAND, $lines, $status);
    if ($status != 0) {
        return false;
    }
    $entries = array();
    foreach (explode(RECORD_SEPARATOR, implode("\n", $lines)) as $record) {
        $fields = explode(FIELD_SEPARATOR, $record);
        if (count($fields) == 5) {
            list($time, $user, $operation, $values, $result) = $fields;
            $entries[] = array('time' => $time, 'user' => $user, 'operation' => $operation, 'values' => $values,
                'result' => $result);
        }
    }
    return $entries;
}

// What the start of the appliance says about settings that it found damaged; empty when there is nothing to say, or
// when the settings have been changed since.
function restored_settings()
{
    $entries = audit_entries();
    foreach ($entries ? $entries : array() as $entry) {
        if ($entry['operation'] == 'restoreSettings') {
            return $entry['values'];
        }
        if ($entry['result'] == 'stored') {
            return '';
        }
    }
    return '';
}

// What came of a change, as markup.
function audit_result($result)
{
    list($verdict, $reason) = explode(': ', strpos($result, ': ') === false ? $result . ': ' : $result, 2);
    return state($verdict == 'stored' ? 'good' : 'bad', ucfirst($verdict))
        . ($reason == '' ? '' : '<p class="hint">' . h($reason) . '</p>');
}

// Names the user to the management services. The functions for SSL and for the SNMP agent do not do that themselves: the
// audit trail would show whom this process of the interpreter has served before.
function name_user_to_services($session)
{
    get_snmp_trap_regs($session); // any function that takes the user along will do
}
