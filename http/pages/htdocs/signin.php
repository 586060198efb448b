<?php
require dirname(dirname(__FILE__)) . '/shared/page.php';
require dirname(dirname(__FILE__)) . '/shared/attempts.php';

open_session();
$user = '';
$error = '';
if (is_post()) {
    $user = posted('user');
    $error = try_to_sign_in($user, text_of($_POST, 'password'));
    if ($error == '') {
        go_to(next_page(posted('next')));
    }
}
show_sign_in(posted('next'), $user, $error, '');

// Signs in, or says why not.
function try_to_sign_in($user, $password)
{
    if (!has_token()) {
        return 'The form was out of date. Please try again.';
    }
    $client = text_of($_SERVER, 'REMOTE_ADDR');
    $seconds = seconds_until_attempt($client, $user);
    if ($seconds > 0) {
        return 'Too many attempts. Please wait ' . $seconds . ($seconds == 1 ? ' second' : ' seconds')
            . ', then try again.';
    }
    if (role_by_password($user, $password) == '') {
        return 'The name or the password is wrong.';
    }
    attempt_succeeded($client, $user);
    begin_session_of($user);
    return '';
}
