<?php
require dirname(dirname(__FILE__)) . '/shared/page.php';

// Where the browser that made a change arrives under the new settings: proves to its page that this is the appliance, and takes
// the single-use key, which moves the session along.
$number = text_of($_GET, 'probe');
if ($number != '') {
    tell_who_this_is($number);
}
$key = text_of($_POST, 'key');
if ($key != '') {
    take_key(advance_trial(), $key);
}
show('trial', array('title' => 'Welcome back'));

// Only to the page's own number, and where the page is to find the appliance: what asks at another of its addresses may be a
// stranger who passes the question on.
function tell_who_this_is($number)
{
    $trial = read_trial();
    send_headers();
    header('Content-Type: text/plain; charset=utf-8');
    // The page at the old address asks, which is another origin. There is nothing else to be read here.
    header('Access-Control-Allow-Origin: *');
    if ($trial && is_looked_for($trial) && same_text($number, $trial['probe']) && is_looked_for_here($trial)) {
        echo answer_to_probe($trial, ''), ' ', answer_to_probe($trial, address_of_request());
    }
    exit;
}

function take_key($trial, $key)
{
    // In the background, and from another family, it is a proof and gives no session: before there is something to be proved it
    // would be lost.
    $is_proof = is_background() || $trial && is_from_other_family($trial);
    $states = $is_proof ? array('trial') : array('applying', 'trial', 'kept');
    $is_used = is_key_for_here($trial, $key, $states) && use_key_up($trial, $states);
    if ($is_used && $is_proof) {
        keep_trial($trial, 'back under the new settings', $trial['user'], client_of_request());
    } elseif ($is_used) {
        open_session();
        if (begin_session_of($trial['user'])) {
            write_audit($trial['user'], client_of_request(), 'Signed in with the key of a change on trial.', '', 'sign-in');
        }
        $_SESSION['trial'] = $trial['id'];
    }
    if (is_background()) {
        send_headers(); // the page itself stays where it is
        exit;
    }
    go_to('applying.php'); // which asks for the password where there is no session
}
