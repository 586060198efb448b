<?php
// Who keeps a change that is on trial: its maker, back under the new settings, or somebody who signs in there and may change
// settings. And the way there: where the appliance is then, and how the session moves along.

define('UNENCRYPTED_COOKIE', 'settings'); // cookie_name() without encryption

// Keeps the change on trial when this request proves that its maker, or somebody else with the role admin, is back.
function keep_if_back($session)
{
    $trial = read_trial();
    if (!$trial || $trial['state'] != 'trial' || !arrives_by_change($session, $trial)) {
        return;
    }
    $is_maker = text_of($_SESSION, 'trial') == $trial['id'];
    $signed_in_since = may_change($session) && isset($_SESSION['signed_in']) && $_SESSION['signed_in'] >= $trial['ended'];
    if ($is_maker || $signed_in_since) {
        keep_trial($trial, 'back under the new settings', $session->user, client_of_request());
    }
}

// What the sign-in says under the new settings, to whom it may concern. Nobody is signed in, so the module is not asked.
function trial_at_sign_in()
{
    $trial = read_trial();
    if (!$trial || $trial['seconds'] == 0 || !in_array($trial['state'], array('applying', 'trial'))
        || !is_likely_by_change($trial)) {
        return '';
    }
    return 'New settings are on trial: when you sign in here as ' . $trial['user'] . ', they are kept. ' . seconds_left($trial)
        . ' seconds are left.';
}

function is_likely_by_change($trial)
{
    $at = address_of_request();
    if ($trial['kind'] == 'ssl') {
        return is_https() == ($trial['values']['https'] == 'On');
    }
    if ($trial['to'] != '') {
        return same_value($at, $trial['to']);
    }
    $is_ipv4 = ipv4_bytes($at) !== false;
    return $trial['kind'] == 'ipv4' ? $is_ipv4 && is_host_address($at) && !same_value($at, $trial['from'])
        : $is_ipv4 == ipv6_is_off_after($trial);
}

function client_of_request()
{
    return plain_address(text_of($_SERVER, 'REMOTE_ADDR'));
}

// The appliance's address that this request came to.
function address_of_request()
{
    return plain_address(text_of($_SERVER, 'SERVER_ADDR'));
}

// Whether this request came by what the change is about: its address, its family, or its mode of encryption.
function arrives_by_change($session, $trial)
{
    $at = address_of_request();
    if ($trial['kind'] == 'ssl') {
        return is_https() == ($trial['values']['https'] == 'On');
    }
    if ($trial['to'] != '') {
        return same_value($at, $trial['to']);
    }
    if (!is_host_address($at) || strpos($at, 'fe80:') === 0) {
        return false; // within the appliance
    }
    if ($trial['kind'] == 'ipv4') {
        $now = get_network_configuration_ipv4($session);
        return $now->dhcpEnabled && same_value($at, $now->ip);
    }
    // Without any address of IPv6 the other family is the only way.
    if (ipv4_bytes($at) !== false) {
        return ipv6_is_off_after($trial) || has_no_ipv6_after($trial);
    }
    return is_among($at, get_all_ipv6_addresses());
}

// Whether the change has left IPv6 without addresses: routers and servers have some seconds to give one.
function has_no_ipv6_after($trial)
{
    if ($trial['state'] != 'trial' || time() - $trial['ended'] < 10) {
        return false;
    }
    foreach (get_all_ipv6_addresses() as $address) {
        if (is_host_address($address) && strpos(strtolower($address), 'fe80:') !== 0) {
            return false;
        }
    }
    return true;
}

function ipv6_is_off_after($trial)
{
    return isset($trial['values']['enabled']) && $trial['values']['enabled'] == 'Off';
}

function is_among($address, $others)
{
    foreach ($others as $other) {
        if (same_value($address, $other)) {
            return true;
        }
    }
    return false;
}

// Makes the single-use key of a change that has begun; the record has its hash. Of a change of addressing the key is in the
// browser's session, and in no address. Of a change of the mode it is the cookie that the browser shows in the other mode: that of
// the session without encryption, or one that stands for none. Under HTTPS it proves that its maker is back, and nothing else.
function give_key($trial)
{
    return_to_session();
    $key = random_hex(16);
    if ($trial['kind'] != 'ssl') {
        $_SESSION['trial'] = $trial['id'];
        $_SESSION['trial_key'] = $key;
    } elseif (is_https()) {
        header('Set-Cookie: ' . UNENCRYPTED_COOKIE . '=' . $key . '; Path=/; HttpOnly; SameSite=Lax', false);
    } else {
        $key = session_id();
    }
    change_trial($trial['id'], array('applying'), array('key' => sha1($key),
        'session' => $trial['kind'] == 'ssl' ? session_id() : ''));
    leave_session();
}

// The key, while this session has one that was not used.
function key_of_session($trial)
{
    return $trial['key'] != '' && text_of($_SESSION, 'trial') == $trial['id'] ? text_of($_SESSION, 'trial_key') : '';
}

// Whether a request may use this key here, for a change in one of these states.
function is_key_for_here($trial, $key, $states)
{
    if (!$trial || !is_followed($trial) || !in_array($trial['state'], $states) || $trial['key'] == ''
        || !same_text(sha1($key), $trial['key'])) {
        return false;
    }
    $accounts = read_accounts();
    if (!isset($accounts[$trial['user']]) || md5($accounts[$trial['user']]['hash']) != $trial['account']) {
        return false;
    }
    return arrives_by_change(session_of_trial($trial), $trial)
        && (is_from_other_family($trial) || same_value(client_of_request(), $trial['client']));
}

// Then nobody can tell whether it is the same computer.
function is_from_other_family($trial)
{
    return (ipv4_bytes(client_of_request()) === false) != (ipv4_bytes($trial['client']) === false);
}

// Returns whether it was this request that used the key up.
function use_key_up($trial, $states)
{
    return change_trial($trial['id'], $states, array('key' => ''), array('key' => $trial['key']));
}

// Of a change of the mode any page may be the one that its maker is back at.
function keep_if_mode_is_reached()
{
    $trial = read_trial();
    $key = text_of($_COOKIE, UNENCRYPTED_COOKIE);
    if ($trial && $trial['kind'] == 'ssl' && $key != '' && is_key_for_here($trial, $key, array('trial'))
        && use_key_up($trial, array('trial'))) {
        keep_trial($trial, 'back under the new settings', $trial['user'], client_of_request());
    }
}

// Whether a browser may still be on its way to the new settings: a change without a trial is kept when it has been made.
function is_followed($trial)
{
    return !is_settled($trial) || $trial['why'] == 'no trial' && seconds_since($trial) < 120;
}

// Whether a page may still ask where the appliance is: also one that was under the new address when that was undone.
function is_looked_for($trial)
{
    return is_followed($trial) || $trial['state'] == 'undone' && time() - $trial['settled'] < 120;
}

function is_looked_for_here($trial)
{
    $goes_back = $trial['state'] == 'undoing' || $trial['state'] == 'undone';
    return $goes_back && same_value(address_of_request(), $trial['from'])
        || arrives_by_change(session_of_trial($trial), $trial);
}

// What this appliance answers to the page's random number at one of its addresses ('' stands for any): nobody else knows the
// record's secret, and who passes the question on gets the answer of another address.
function answer_to_probe($trial, $address)
{
    return sha1($trial['secret'] . ':' . $trial['probe'] . ':' . short_ipv6($address));
}

// What the page has to know of each origin: array of 'origin', 'answer' and 'key'. A name may be anybody's, so that it gets no
// key. Who may only look learns nothing by which a stranger could pass for the appliance.
function questions_of($session, $trial, $origins)
{
    $questions = array();
    foreach (may_change($session) ? $origins : array() as $origin) {
        $host = preg_replace('/^[a-z]+:\/\/|:[0-9]+$|[][]/', '', $origin);
        $questions[] = array('origin' => $origin, 'answer' => answer_to_probe($trial, is_address($host) ? $host : ''),
            'key' => is_address($host) ? key_of_session($trial) : '');
    }
    return $questions;
}

// Scheme and address under which the browser finds the appliance after the change, or when it is undone, when it is using
// the address that goes away; else ''.
function moved_to($trial)
{
    if ($trial['state'] == 'undoing' && $trial['kind'] == 'ipv4') {
        return is_host_address($trial['from']) && !is_used_address($trial['from'])
            ? origin_of($trial['from'], port_of_request()) : '';
    }
    if ($trial['to'] == '' || $trial['from'] == '' || same_value($trial['from'], $trial['to'])) {
        return '';
    }
    return is_used_address($trial['from']) ? origin_of($trial['to'], port_of_request()) : '';
}

// Whether the browser uses this address. A name stands for the address that the request came to; under a port of its own
// the pages are published by another machine.
function is_used_address($address)
{
    if (!preg_match('/^\[?([^\]]*?)\]?(:[0-9]+)?$/D', host_of_request(), $found)) {
        return false;
    }
    $here = $found[1];
    if (!is_address($here)) {
        $here = !isset($found[2]) && $here != 'localhost' ? address_of_request() : '';
    }
    return same_value($here, $address);
}

function port_of_request()
{
    return preg_match('/(:[0-9]+)$/D', host_of_request(), $found) ? $found[1] : '';
}

function origin_of($address, $port)
{
    return (is_https() ? 'https://' : 'http://') . (strpos($address, ':') === false ? $address : '[' . $address . ']')
        . $port;
}

// Where else the appliance may be found: array of 'origins' to be asked, with a random number, whether they are this
// appliance, 'leaves': whether the address in use goes away, and 'known': whether they are surely the appliance's.
function ways_of($session, $trial)
{
    $moved_to = moved_to($trial);
    if ($moved_to != '') {
        return array('origins' => array($moved_to), 'leaves' => true);
    }
    $at = address_of_request();
    $is_ipv6 = ipv4_bytes($at) === false;
    if ($trial['kind'] == 'ipv4' && $trial['to'] == '') {
        $origins = array();
        foreach ($trial['others'] as $host) {
            if (!is_used_address($host)) {
                $origins[] = origin_of($host, port_of_request());
            }
        }
        return array('origins' => $origins, 'leaves' => is_used_address($trial['from']));
    }
    if ($trial['kind'] == 'ipv6' && $is_ipv6) {
        // The address of the other family, which the change leaves alone.
        $origins = array();
        foreach ($trial['others'] as $host) {
            $origins[] = origin_of($host, port_of_request());
        }
        return array('origins' => $origins, 'leaves' => true, 'known' => true);
    }
    if ($trial['kind'] == 'ipv6' && $trial['state'] == 'trial' && !ipv6_is_off_after($trial)) {
        $origins = array();
        foreach ($trial['to'] == '' ? get_all_ipv6_addresses() : array($trial['to']) as $address) {
            $origins[] = origin_of($address, '');
        }
        return array('origins' => $origins, 'leaves' => false);
    }
    return array('origins' => array(), 'leaves' => false);
}
