<?php
require dirname(dirname(__FILE__)) . '/shared/page.php';

// Where the browser that made a change arrives under the new settings: proves to its page that this is the appliance, and takes
// the single-use key, which moves the session along.
$number = text_of($_GET, 'probe');
if (preg_match('/^[0-9a-f]{32}$/D', $number)) {
    tell_who_this_is($number);
}
if (text_of($_POST, 'key') != '') {
    take_key(text_of($_POST, 'key'));
}
// In the address only for the other mode of this same address, where it gives no session.
$current = read_trial();
if ($current && $current['kind'] == 'ssl' && text_of($_GET, 'key') != '') {
    take_key(text_of($_GET, 'key'));
}
show('trial', array('title' => 'Welcome back'));

function tell_who_this_is($number)
{
    $trial = read_trial();
    send_headers();
    header('Content-Type: text/plain; charset=utf-8');
    // The page at the old address asks, which is another origin. There is nothing else to be read here.
    header('Access-Control-Allow-Origin: *');
    echo $trial && is_looked_for($trial) ? answer_to_probe($trial, $number) : '';
    exit;
}

function take_key($key)
{
    $trial = use_key($key);
    if (!$trial) {
        go_to('applying.php'); // which asks for the password
    }
    if (is_background()) {
        // The page itself stays where it is.
        keep_trial($trial, 'back under the new settings', $trial['user'], client_of_request());
        send_headers();
        exit;
    }
    // A key that has travelled unencrypted proves that its maker is back, and gives no session under HTTPS.
    if ($trial['kind'] == 'ssl') {
        keep_trial($trial, 'back under the new settings', $trial['user'], client_of_request());
        go_to('applying.php');
    }
    open_session();
    begin_session_of($trial['user']);
    $_SESSION['trial'] = $trial['id'];
    go_to('applying.php');
}
