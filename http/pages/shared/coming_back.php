<?php
// Who keeps a change that is on trial: its maker, back under the new settings, or somebody who signs in there and may change
// settings. And the way there: where the appliance is then, and how the session moves along.

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
    // With IPv6 off the other family is the only way.
    return ipv6_is_off_after($trial) ? ipv4_bytes($at) !== false
        : ipv4_bytes($at) === false && is_among($at, get_all_ipv6_addresses());
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

// Makes the single-use key of a new change and gives it to the browser's session; the record has its hash.
function give_key($trial)
{
    $key = random_hex(16);
    $trial['key'] = sha1($key);
    return_to_session();
    $_SESSION['trial'] = $trial['id'];
    $_SESSION['trial_key'] = $key;
    $trial['session'] = $trial['kind'] == 'ssl' ? session_id() : '';
    return $trial;
}

// The key, while this session has one that was not used.
function key_of_session($trial)
{
    return $trial['key'] != '' && text_of($_SESSION, 'trial') == $trial['id'] ? text_of($_SESSION, 'trial_key') : '';
}

// What a request with the key comes to: false when the key is none or not for here; else the trial, and the key is used up.
function use_key($key)
{
    $trial = advance_trial();
    if (!$trial || !is_followed($trial) || $trial['key'] == '' || !same_text(sha1($key), $trial['key'])) {
        return false;
    }
    $accounts = read_accounts();
    if (!isset($accounts[$trial['user']]) || md5($accounts[$trial['user']]['hash']) != $trial['account']) {
        return false;
    }
    // From the same device, as far as that can be told: its address of the other family is another one.
    $client = client_of_request();
    $same_family = (ipv4_bytes($client) === false) == (ipv4_bytes($trial['client']) === false);
    if (!arrives_by_change(session_of_trial($trial), $trial) || $same_family && !same_value($client, $trial['client'])) {
        return false;
    }
    return change_trial($trial['id'], array('applying', 'trial', 'kept'), array('key' => ''),
        array('key' => $trial['key']));
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

// What this appliance answers to a random number: nobody else knows the record's secret.
function answer_to_probe($trial, $number)
{
    return sha1($trial['secret'] . ':' . $number);
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
// appliance, and 'leaves': whether the address in use goes away.
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
    if (family_of_kind($trial['kind']) == 'ipv6' && $is_ipv6) {
        // The address of the other family, which the change leaves alone.
        $origins = array();
        foreach ($trial['others'] as $host) {
            $origins[] = origin_of($host, port_of_request());
        }
        return array('origins' => $origins, 'leaves' => true);
    }
    if (family_of_kind($trial['kind']) == 'ipv6' && $trial['state'] == 'trial' && !ipv6_is_off_after($trial)) {
        $origins = array();
        foreach ($trial['to'] == '' ? get_all_ipv6_addresses() : array($trial['to']) as $address) {
            $origins[] = origin_of($address, '');
        }
        return array('origins' => $origins, 'leaves' => false);
    }
    return array('origins' => array(), 'leaves' => false);
}
