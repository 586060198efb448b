<?php
// The change that is on trial: one record, changed under one lock, so that of those who want to keep it, undo it or begin
// another one at the same instant exactly one wins.
//
//   applying   asked for; the module has not come to its end yet
//   trial      in force; waits for its maker to be back
//   kept       for good
//   refused    by the appliance, which has the settings of before
//   undoing    the settings of before are being put back
//   undone     they are back
//
// watch_trial() waits for the end of the time, in a process of its own; coming_back.php says who keeps one.

define('TRIAL_FILE', PRIVATE_FOLDER . '/trial');
define('TRIAL_LOCK', PRIVATE_FOLDER . '/trial.lock');
define('TRIAL_ROOM', PRIVATE_FOLDER . '/trial.room'); // room on the disk for the way back
define('TRIAL_SECONDS', 90); // unless another time is chosen
define('UNDO_SECONDS', 60); // in which undoing comes to its end; then somebody else tries
define('UNDO_TRIES', 3); // at once; then one more every now and then
if (!defined('START_SECONDS')) {
    define('START_SECONDS', 30); // that the device's start waits for it
}
define('UNDO_PAUSE', 60); // seconds between those
define('UNDO_PAUSE_OF_REQUESTS', 300); // which only take the place of a watcher that is gone
define('EARLIER_LEASE', PRIVATE_FOLDER . '/lease'); // the address before the last change from DHCP

$undoes_unwritten = false; // whether this process undoes also what it cannot write down: the watcher, and the start
$unwritten_trial = false; // the record that it could not write yet

// The last change of addressing or of the SSL mode, or false.
function read_trial()
{
    $stored = stored_trial();
    $unwritten = $GLOBALS['unwritten_trial'];
    return $unwritten && (!$stored || $stored['id'] == $unwritten['id']) ? $unwritten : $stored;
}

function stored_trial()
{
    clearstatcache();
    $text = is_readable(TRIAL_FILE) ? implode('', file(TRIAL_FILE)) : '';
    $trial = $text == '' ? false : @unserialize($text); // one that is damaged is none
    if (isset($trial['kind']) && ($trial['kind'] == 'ipv6-switch' || $trial['kind'] == 'ipv6-modes')) {
        $trial['kind'] = 'ipv6'; // an older program told its parts apart
    }
    $is_whole = is_array($trial) && isset($trial['id'], $trial['state'], $trial['kind'], $trial['values'], $trial['before'])
        && is_array($trial['values']) && is_array($trial['before']) && isset($GLOBALS['kinds_of_change'][$trial['kind']]);
    // What the record of an older program lacks.
    return $is_whole ? $trial + blank_trial() : false;
}

// Makes $trial the change that is on trial, unless there is one already. Returns whether that worked.
function begin_trial($trial)
{
    make_private_folders();
    $lock = open_locked(TRIAL_LOCK);
    $current = read_trial();
    $begun = $lock && !($current && is_active($current)) && set_room_aside($trial) && store_trial($trial);
    if ($lock) {
        fclose($lock);
    }
    if ($begun) {
        audit_trial($trial, 'begun', $trial['user'], $trial['client'], $trial['seconds'] == 0 ? 'without a trial'
            : 'for ' . $trial['seconds'] . ' seconds');
    }
    return $begun;
}

// A new record. $values: name => what is wanted, as it is shown; $before: all that it takes to put it back; $from and
// $to: the address that goes away and the one that comes, '' when not known; $seconds: 0 for no trial.
function new_trial($session, $kind, $values, $before, $from, $to, $seconds)
{
    $current = read_trial();
    // Where the change before may still be going on, its lines of the trace log are this one's too.
    $trace = $current && $current['state'] == 'applying' ? $current['trace'] : trace_size();
    $accounts = read_accounts();
    return array('id' => random_hex(8), 'state' => 'applying', 'kind' => $kind, 'values' => $values, 'before' => $before,
        'from' => $from, 'to' => $to, 'trace' => $trace, 'began' => time(), 'seconds' => $seconds,
        'boot' => boot_id(), 'uptime' => uptime(), // the same beginning, whatever becomes of the clock
        'user' => $session->user, 'account' => md5($accounts[$session->user]['hash']),
        'client' => plain_address(text_of($_SERVER, 'REMOTE_ADDR')), 'secret' => random_hex(16), 'probe' => random_hex(16))
        + blank_trial();
}

function blank_trial()
{
    return array('from' => '', 'to' => '', 'trace' => 0, 'began' => 0, 'boot' => '', 'uptime' => 0, 'seconds' => 0,
        // all that it takes to have it again, and whether it has been in force
        'wanted' => array(), 'in_force' => false,
        // who asked for it
        'user' => '', 'account' => '', 'client' => '',
        // hash of the single-use key, what the answer to a random number is made of, that number, and the session that ends
        // with the keeping; where else the appliance may be found, whether a browser without scripts is sent there, and what the
        // watcher has to ask for; whether there is one
        'key' => '', 'secret' => '', 'probe' => '', 'session' => '', 'others' => array(), 'goes_alone' => false,
        'later' => array(), 'watched' => false,
        // when it came to its end and was settled; why, by whom, from where; what the trace log said; who has been told
        'ended' => 0, 'settled' => 0, 'why' => '', 'by' => '', 'from_client' => '', 'lines' => array(), 'told' => array(),
        'as_wanted' => false,
        // the undoing: when it was handed to the watcher and begun, where in the trace log, how often, with what end; what the
        // settings were when it had failed
        'undo_handed' => 0, 'undo_began' => 0, 'undo_trace' => 0, 'undo_tries' => 0, 'undo_asked' => false,
        'undo_failed' => false, 'left' => '');
}

// Whether another change has to wait for this one.
function is_active($trial)
{
    if ($trial['state'] == 'applying' && $trial['seconds'] == 0) {
        return seconds_since($trial) < $GLOBALS['kinds_of_change'][$trial['kind']]['longest_seconds'];
    }
    return !is_settled($trial);
}

function is_settled($trial)
{
    return $trial['state'] == 'kept' || $trial['state'] == 'refused' || $trial['state'] == 'undone';
}

// While it is not settled this is no matter of the clock, which may be set anew as soon as a time server is reached.
function seconds_since($trial)
{
    $since_start = uptime() - $trial['uptime'];
    $is_of_this_run = $trial['boot'] != '' && $trial['boot'] == boot_id() && $trial['uptime'] > 0 && $since_start >= 0;
    return !is_settled($trial) && $is_of_this_run ? $since_start : max(0, time() - $trial['began']);
}

// Seconds since the device's start, or 0.
function uptime()
{
    return is_readable('/proc/uptime') ? (int) implode('', file('/proc/uptime')) : 0;
}

// Which start of the device this is, or ''.
function boot_id()
{
    $file = '/proc/sys/kernel/random/boot_id';
    return is_readable($file) ? trim(implode('', file($file))) : '';
}

// Until the settings of before come back.
function seconds_left($trial)
{
    return max(0, $trial['seconds'] - seconds_since($trial));
}

// Changes the record when it is still this trial, in one of these states, and as it is expected to be (name => value).
// Returns the new record, or false.
function change_trial($id, $states, $changes, $expected = array())
{
    $lock = open_locked(TRIAL_LOCK);
    $trial = read_trial();
    $right = ($lock || $GLOBALS['undoes_unwritten']) && $trial && $trial['id'] == $id && in_array($trial['state'], $states);
    foreach ($expected as $name => $value) {
        $right = $right && $trial[$name] === $value;
    }
    if ($right) {
        foreach ($changes as $name => $value) {
            $trial[$name] = $value;
        }
        $right = $lock && store_trial($trial) || hold_unwritten($trial);
        if ($right && is_settled($trial)) {
            free_room();
        }
    }
    if ($lock) {
        fclose($lock);
    }
    return $right ? $trial : false;
}

// It has to outlive a power cut. On a disk that has become full there is the room that was set aside.
function store_trial($trial)
{
    $text = serialize($trial);
    if (!replace_file(TRIAL_FILE, $text, true) && !(free_room() && replace_file(TRIAL_FILE, $text, true))) {
        return false;
    }
    $GLOBALS['unwritten_trial'] = false;
    return true;
}

// The settings of before come back also when that cannot be written down: nobody can keep the change then. Whether this
// process does that.
function hold_unwritten($trial)
{
    if (!$GLOBALS['undoes_unwritten'] || ($trial['state'] != 'undoing' && $trial['state'] != 'undone')) {
        return false;
    }
    $GLOBALS['unwritten_trial'] = $trial;
    return true;
}

function write_unwritten()
{
    $lock = open_locked(TRIAL_LOCK);
    $trial = $GLOBALS['unwritten_trial'];
    $stored = stored_trial();
    if ($lock && $stored && $stored['id'] != $trial['id']) {
        $GLOBALS['unwritten_trial'] = false; // another change has begun meanwhile
    } elseif ($lock) {
        store_trial($trial);
    }
    if ($lock) {
        fclose($lock);
    }
}

// A disk that is full when the settings of before are to be stored again would leave the device where nobody finds it.
function set_room_aside($trial)
{
    return $trial['seconds'] == 0 || replace_file(TRIAL_ROOM, str_repeat('.', 65536), true);
}

// Returns whether there was any.
function free_room()
{
    return is_file(TRIAL_ROOM) && unlink(TRIAL_ROOM);
}

// The change has been asked for in vain: nothing is on trial.
function drop_trial($trial, $why)
{
    if (change_trial($trial['id'], array('applying'), array('state' => 'refused', 'settled' => time(), 'why' => $why,
        'told' => array($trial['user'])))) {
        audit_trial($trial, 'refused by the appliance', $trial['user'], $trial['client'], $why);
    }
}

// Brings the record to where it is by now: called by every request of somebody who is signed in, and by the watcher. $overdue:
// whether the time is over by another measure than the clock. Returns the record, or false.
function advance_trial($overdue = false)
{
    $trial = read_trial();
    if ($trial && $trial['state'] == 'applying') {
        $trial = follow_trace($trial);
    }
    if ($trial && $trial['state'] != 'undoing' && !is_settled($trial) && $trial['seconds'] > 0
        && ($overdue || seconds_left($trial) == 0)) {
        $trial = undo_trial($trial, 'time', '', '');
    }
    if ($trial && $trial['state'] == 'undone' && $trial['undo_failed']) {
        $trial = retry_undo($trial);
    }
    if ($trial && $trial['state'] == 'undoing') {
        $trial = follow_undo($trial);
    }
    return $trial;
}

// Takes down what the trace log says of the end of the change.
function follow_trace($trial)
{
    $lines = traced_since($trial['trace']);
    $end = how_it_ended($trial['kind'], $lines);
    if ($end == '') {
        return $trial;
    }
    if ($end == 'failed' && has_other_parts($trial)) {
        change_trial($trial['id'], array('applying'), array('ended' => time(), 'lines' => $lines));
        return undo_trial($trial, 'refused', '', '');
    }
    if ($end == 'failed') {
        $changes = array('state' => 'refused', 'settled' => time(), 'ended' => time(), 'lines' => $lines);
    } elseif ($trial['seconds'] == 0) {
        $changes = array('state' => 'kept', 'settled' => time(), 'ended' => time(), 'lines' => $lines, 'why' => 'no trial',
            'in_force' => true);
    } else {
        $changes = array('state' => 'trial', 'ended' => time(), 'lines' => $lines, 'in_force' => true);
    }
    $is_mine = change_trial($trial['id'], array('applying'), $changes);
    if ($is_mine && $changes['state'] != 'trial') {
        audit_trial($trial, $end == 'failed' ? 'refused by the appliance' : 'kept', $trial['user'], $trial['client'],
            $end == 'failed' ? '' : 'without a trial');
    }
    return read_trial();
}

// Whether something of the change is in force although the thread, which ends in the trace log, has set nothing.
function has_other_parts($trial)
{
    return $trial['kind'] == 'ipv6' && has_one_of($trial['values'], array('enabled', 'stateless', 'dhcp'));
}

function has_one_of($values, $names)
{
    foreach ($names as $name) {
        if (isset($values[$name])) {
            return true;
        }
    }
    return false;
}

// A change that is in force when the module's function returns.
function ended_at_once($trial)
{
    $changes = array('state' => 'trial', 'ended' => time(), 'in_force' => true);
    if ($trial['seconds'] == 0) {
        $changes = array('state' => 'kept', 'settled' => time(), 'ended' => time(), 'why' => 'no trial', 'in_force' => true);
    }
    return change_trial($trial['id'], array('applying'), $changes);
}

// Keeps the change for good. $why: how it was proved, or asked for. Returns whether it was this call that did it. When the time
// is over it is too late, also while the undoing has not begun.
function keep_trial($trial, $why, $by, $client)
{
    $kept = seconds_left($trial) == 0 ? false : change_trial($trial['id'], array('trial'), array('state' => 'kept',
        'settled' => time(), 'why' => $why, 'by' => $by, 'from_client' => $client, 'told' => array()));
    if (!$kept) {
        return false;
    }
    audit_trial($kept, 'kept', $by, $client, $why);
    // What has travelled unencrypted is of no use any longer.
    if ($kept['session'] != '' && is_file(SESSIONS_FOLDER . '/sess_' . $kept['session'])) {
        unlink(SESSIONS_FOLDER . '/sess_' . $kept['session']);
    }
    if ($kept['kind'] == 'ssl') {
        end_sessions_of_mode($kept['values']['https'] != 'On');
    }
    return true;
}

// Decides that the settings of before come back. $why: 'time', 'asked', 'start', or 'refused' of a part of it.
// $also_kept: whether what is kept by now is to be undone, too. Returns the record.
function undo_trial($trial, $why, $by, $client, $also_kept = false)
{
    $states = $also_kept && can_undo_kept($trial) ? array('applying', 'trial', 'kept') : array('applying', 'trial');
    $undoing = change_trial($trial['id'], $states, array('state' => 'undoing', 'why' => $why, 'by' => $by,
        'from_client' => $client, 'undo_began' => 0, 'undo_tries' => 0, 'undo_handed' => 0,
        'told' => array()));
    if ($undoing) {
        audit_trial($undoing, 'undoing', $by == '' ? $trial['user'] : $by, $client, why_undone($undoing));
    }
    return read_trial();
}

// Puts the settings of before back, unless another process is at it, and takes down how that ended. A request of a browser
// leaves it to the watcher where it can: the answer is to go out first.
function follow_undo($trial)
{
    if ($trial['undo_began'] > 0 && !is_undo_late($trial)) {
        return follow_end_of_undo($trial);
    }
    if (php_sapi_name() != 'cli' && $trial['why'] == 'asked' && hand_to_watcher($trial)) {
        return $trial;
    }
    if (php_sapi_name() == 'cli' && $trial['why'] == 'asked') {
        pause(1); // until the answer to who asked has gone out
    }
    // What is still going on of the change itself ends in the same place of the trace log.
    $from = $trial['ended'] == 0 ? $trial['trace'] : trace_size();
    $mine = change_trial($trial['id'], array('undoing'), array('undo_began' => time(), 'undo_trace' => $from,
        'undo_tries' => $trial['undo_tries'] + 1, 'undo_asked' => false),
        array('undo_began' => $trial['undo_began'], 'undo_tries' => $trial['undo_tries']));
    if (!$mine) {
        return read_trial();
    }
    free_room();
    begin_change();
    $on_its_way = $trial['ended'] == 0 ? $trial['wanted'] : array();
    if (!put_back(session_of_trial($trial), $trial['kind'], $trial['before'], $on_its_way)) {
        end_undo($mine, change_failed(), array());
    } elseif (change_failed()) {
        end_undo($mine, true, array());
    } else {
        // Only from now on an end in the trace log is the end of this.
        change_trial($mine['id'], array('undoing'), array('undo_asked' => true), array('undo_began' => $mine['undo_began']));
    }
    return read_trial();
}

// Whether the watcher does it: it is started once, and has some seconds to begin.
function hand_to_watcher($trial)
{
    if ($trial['undo_handed'] > 0) {
        $since = time() - $trial['undo_handed'];
        return $since >= 0 && $since < 10;
    }
    return !change_trial($trial['id'], array('undoing'), array('undo_handed' => time()), array('undo_handed' => 0))
        || start_watching();
}

// Several tries: a lock of the device may have been held by another change.
function is_undo_late($trial)
{
    $since = time() - $trial['undo_began'];
    return $trial['undo_tries'] < UNDO_TRIES && ($since < 0 || $since > UNDO_SECONDS);
}

// Whether what was kept may be undone: as long as nobody has changed these settings since, and for a day.
function can_undo_kept($trial)
{
    $since = time() - $trial['settled'];
    return $trial['state'] == 'kept' && $trial['seconds'] > 0 && $since >= 0 && $since < 86400 && $trial['wanted']
        && settings_text($trial['kind'], $trial['wanted']) == text_of_settings_now($trial);
}

function text_of_settings_now($trial)
{
    return settings_text($trial['kind'], settings_of(session_of_trial($trial), $trial['kind']));
}

function follow_end_of_undo($trial)
{
    $lines = traced_since($trial['undo_trace']);
    $end = $trial['undo_asked'] ? how_it_ended($trial['kind'], $lines) : '';
    if ($end != '') {
        // The thread of the change itself may have come after that of the undoing.
        $is_other = $trial['kind'] == 'ipv6' && text_of_settings_now($trial) != settings_text('ipv6', $trial['before']);
        end_undo($trial, $end == 'failed' || $is_other, $lines);
    } elseif ($trial['undo_tries'] >= UNDO_TRIES && time() - $trial['undo_began'] > UNDO_SECONDS) {
        // The trace log may be what could not be written.
        end_undo($trial, text_of_settings_now($trial) != settings_text($trial['kind'], $trial['before']), array());
    }
    return read_trial();
}

// Undoing that has failed is tried again every now and then, as long as nobody has changed these settings since.
function retry_undo($trial, $at_once = false)
{
    $since = time() - $trial['settled'];
    $pause = php_sapi_name() == 'cli' ? UNDO_PAUSE : UNDO_PAUSE_OF_REQUESTS;
    if ($trial['left'] == '' || !$at_once && $since >= 0 && $since < $pause) {
        return $trial;
    }
    $settings = settings_of(session_of_trial($trial), $trial['kind']);
    $now = settings_text($trial['kind'], $settings);
    // At a start no address is in force yet.
    $is_unknown = $trial['kind'] == 'ipv4' && !$settings['dhcp'] && !is_host_address($settings['ip']);
    $same = array($trial['left'], $trial['wanted'] ? settings_text($trial['kind'], $trial['wanted']) : '');
    if ($now == settings_text($trial['kind'], $trial['before'])) {
        change_trial($trial['id'], array('undone'), array('undo_failed' => false, 'settled' => time(), 'told' => array()));
    } elseif (!$is_unknown && !in_array($now, $same)) {
        change_trial($trial['id'], array('undone'), array('left' => ''));
    } else {
        change_trial($trial['id'], array('undone'), array('state' => 'undoing', 'undo_began' => 0, 'undo_handed' => 0,
            'undo_tries' => UNDO_TRIES - 1), array('undo_failed' => true));
    }
    return read_trial();
}

function end_undo($trial, $failed, $lines)
{
    if ($failed && $trial['undo_tries'] < UNDO_TRIES) {
        change_trial($trial['id'], array('undoing'), array('undo_began' => 0));
        return;
    }
    $again = $failed && $trial['undo_failed']; // which has been said
    $refused = $trial['why'] == 'refused' && !$failed;
    $operation = $refused ? 'refused by the appliance' : ($failed ? 'could not be undone' : 'undone');
    if (change_trial($trial['id'], array('undoing'), array('state' => $refused ? 'refused' : 'undone', 'settled' => time(),
        'why' => $refused ? '' : $trial['why'], 'undo_failed' => $failed, 'lines' => $refused ? $trial['lines'] : $lines,
        'left' => $failed ? text_of_settings_now($trial) : '', 'told' => $again ? $trial['told'] : array())) && !$again) {
        audit_trial($trial, $operation, $trial['by'] == '' ? $trial['user'] : $trial['by'], $trial['from_client'],
            why_undone($trial));
    }
}

function why_undone($trial)
{
    if ($trial['why'] == 'start') {
        return 'the appliance started anew during the trial';
    }
    if ($trial['why'] == 'refused') {
        return 'the appliance refused a part of it';
    }
    return $trial['why'] == 'time' ? 'nobody was back under the new settings in time' : 'asked for by ' . $trial['by'];
}

// The undo of a power cut, before the stored settings are put into force.
function undo_at_start()
{
    $GLOBALS['undoes_unwritten'] = true;
    $trial = read_trial();
    if (!$trial) {
        error_log('The record of the last change cannot be read; if it was on trial, its settings stay.');
    }
    if ($trial && $trial['seconds'] > 0 && ($trial['state'] == 'applying' || $trial['state'] == 'trial')) {
        $trial = undo_trial($trial, 'start', '', '');
    } elseif ($trial && $trial['state'] == 'undoing') {
        // Whoever was at it is gone.
        $trial = change_trial($trial['id'], array('undoing'), array('undo_began' => 0, 'undo_tries' => 0, 'why' => 'start'));
    } elseif ($trial && $trial['state'] == 'applying') {
        change_trial($trial['id'], array('applying'), array('state' => 'kept', 'settled' => time(), 'why' => 'no trial'));
        return;
    } elseif ($trial && $trial['state'] == 'undone' && $trial['undo_failed']) {
        $trial = retry_undo($trial, true);
        if (is_settled($trial)) {
            return;
        }
    } else {
        return;
    }
    // Nothing else goes on at a start.
    change_trial($trial['id'], array('undoing'), array('ended' => 1));
    if (!watch_undo(START_SECONDS)) {
        start_watching(); // which goes on with it
        $trial = read_trial();
        if ($trial && !is_settled($trial)) {
            exec('kill -KILL ' . getmypid()); // the end of this process would wait for the module's thread
        }
    }
}

// The process stays until the module's thread has come to its end. Returns whether the settings of before are back, and that
// is written down.
function watch_undo($seconds)
{
    for ($i = 0; $i < 2 * $seconds; $i++) {
        $trial = advance_trial();
        if (!$trial || is_settled($trial)) {
            return !$trial || !$trial['undo_failed'] && !$GLOBALS['unwritten_trial'];
        }
        pause(0.5);
    }
    return false;
}

// Waits for the end of the trial, whatever becomes of the web server and of who asked: the watcher's work.
function watch_trial()
{
    $known = read_trial();
    if (!$known || !function_exists('set_network_configuration_ipv4')) {
        return; // without the module nothing can be put back: whoever waits for 'watched' begins no trial
    }
    $GLOBALS['undoes_unwritten'] = true;
    change_trial($known['id'], array('applying', 'trial', 'undoing'), array('watched' => true));
    carry_out_later($known);
    // The steps are counted too: a clock that is set back must not lengthen the trial.
    $limit = $known['seconds'] + 5;
    for ($step = 0; is_watched($known, $step); $step++) {
        pause(is_settled($known) ? 5 : 0.5);
        $trial = advance_trial($step > 2 * $limit);
        if (!$trial) {
            $trial = restore_trial($known);
        }
        if ($trial['id'] != $known['id']) {
            return;
        }
        if ($GLOBALS['unwritten_trial'] && is_settled($trial)) {
            write_unwritten();
        }
        $known = $trial;
    }
}

// Whether the watcher has to stay: also until an undoing that failed has worked, and until its end could be written down.
function is_watched($trial, $step)
{
    if (is_settled($trial)) {
        return $trial['undo_failed'] && $trial['left'] != '' || $GLOBALS['unwritten_trial'];
    }
    return $trial['seconds'] > 0 || $trial['state'] == 'undoing' || $step < 2 * UNDO_SECONDS;
}

// A record that has become unreadable during the trial must not end it. Returns the record, which is the known one also when that
// cannot be written.
function restore_trial($known)
{
    $lock = open_locked(TRIAL_LOCK);
    if ($lock && !read_trial()) {
        error_log('The record of the change on trial was damaged and is written again.');
        store_trial($known);
    }
    if ($lock) {
        fclose($lock);
    }
    $trial = read_trial();
    return $trial ? $trial : $known;
}

// A change that would cut the connection before the answer is out is asked for here: 'later' holds the settings.
function carry_out_later($trial)
{
    if (!$trial || !$trial['later']) {
        return;
    }
    pause(2);
    if (!change_trial($trial['id'], array('applying'), array('later' => array()), array('later' => $trial['later']))) {
        return;
    }
    begin_change();
    $is_traced = put_into_force(session_of_trial($trial), $trial['kind'], $trial['later']);
    if (change_failed()) {
        $why = take_back_at_once(session_of_trial($trial), $trial);
        change_trial($trial['id'], array('applying'), array('state' => 'refused', 'settled' => time(), 'why' => $why));
        audit_trial($trial, 'refused by the appliance', $trial['user'], $trial['client'], $why);
    } elseif (!$is_traced) {
        ended_at_once($trial);
    }
}

// What was refused, but for a part of it. Returns why it was.
function take_back_at_once($session, $trial)
{
    $failure = $GLOBALS['failures'][count($GLOBALS['failures']) - 1];
    if ($trial['kind'] != 'ipv4') {
        put_back($session, $trial['kind'], $trial['before']);
    }
    return $failure['message'];
}

// What the module is asked for is asked for in the name of who made the change.
function session_of_trial($trial)
{
    $session = new Session();
    $session->user = $trial['user'];
    $session->role = 'admin';
    return $session;
}

function pause($seconds)
{
    usleep((int) (1000000 * $seconds));
}

// Starts the process that watches, and waits until that says so in the record. Returns whether it did.
function is_being_watched($trial)
{
    if (!start_watching()) {
        return false;
    }
    for ($i = 0; $i < 50; $i++) {
        $now = read_trial();
        if (!$now || $now['id'] != $trial['id'] || $now['watched']) {
            break;
        }
        pause(0.1);
    }
    return $now && $now['id'] == $trial['id'] && $now['watched'];
}

// Returns whether it could be asked for: it may still fail to begin.
function start_watching()
{
    $lines = array();
    $status = 1;
    exec('/bin/sh ' . APPLIANCE_FOLDER . '/AppManager/bin/trialWatch.sh', $lines, $status);
    return $status == 0;
}

function audit_trial($trial, $operation, $user, $client, $details)
{
    write_audit_of_trial($trial, $operation, $user, $client, $details);
}
