<?php
// Beginning a change that can cut the connection which asked for it. trial.php keeps the record of it, outcome.php says what
// it has come to.

// Seconds => what the form calls them.
$times_of_trial = array('60' => '60 seconds', '90' => '90 seconds', '180' => '3 minutes', '300' => '5 minutes',
    '0' => 'without a trial');

// The choice beside the button, under an identifier of its own.
function trial_field($id)
{
    $wanted = typed_again('trial', posted('trial'));
    $chosen = isset($GLOBALS['times_of_trial'][$wanted]) ? $wanted : (string) TRIAL_SECONDS;
    $html = '<div class="field trial"><label for="' . $id . '">On trial for</label><select name="trial" id="' . $id
        . '" aria-describedby="' . $id . '-hint">';
    foreach ($GLOBALS['times_of_trial'] as $seconds => $label) {
        $html .= '<option value="' . $seconds . '"' . ((string) $seconds == $chosen ? ' selected' : '') . '>' . h($label)
            . '</option>';
    }
    return $html . '</select><p class="hint" id="' . $id . '-hint">Unless you are back under the new settings in this time, the'
        . ' settings of before come back by themselves.</p></div>';
}

function chosen_seconds()
{
    $chosen = posted('trial');
    return isset($GLOBALS['times_of_trial'][$chosen]) ? (int) $chosen : TRIAL_SECONDS;
}

// The change that another one has to wait for, or false.
function trial_in_the_way()
{
    $trial = read_trial();
    return $trial && is_active($trial) ? $trial : false;
}

// Asks for a change and goes to the page that follows it. $wanted: the settings as put_into_force() takes them. Returns only when
// nothing was changed: array of what to say, empty when the module has reported it.
function start_change($session, $trial, $wanted)
{
    $trial['wanted'] = $wanted;
    if ($trial['kind'] == 'ipv6' && ipv4_bytes(address_of_request()) === false) {
        $trial['later'] = $wanted; // the answer would not arrive
    }
    $errors = start_trial($trial);
    if ($errors) {
        return $errors;
    }
    if (!$trial['later']) {
        begin_change();
        $is_traced = put_into_force($session, $trial['kind'], $wanted);
        if (change_failed()) {
            drop_trial($trial, take_back_at_once($session, $trial));
            return array();
        }
        if (!$is_traced) {
            ended_at_once($trial);
        }
    }
    go_to('applying.php');
}

// Writes the trial down and has it watched over, before anything is changed. Returns what was wrong.
function start_trial($trial)
{
    leave_session();
    if (!begin_trial($trial)) {
        return array(trial_in_the_way() ? 'Another change is on trial: keep or undo it first. Yours was not applied.'
            : 'Nothing was changed: the trial cannot be written down in ' . PRIVATE_FOLDER . '.');
    }
    // Another attempt of the same browser must not take the key away from the change that is on trial.
    give_key($trial);
    if (($trial['seconds'] > 0 || $trial['later']) && !is_being_watched($trial)) {
        drop_trial($trial, 'the trial cannot be watched over');
        return array('Nothing was changed: the trial cannot be watched over on this appliance. Choose "without a trial" to change it'
            . ' all the same.');
    }
    return array();
}
