<?php
require dirname(dirname(__FILE__)) . '/shared/page.php';
require dirname(dirname(__FILE__)) . '/shared/attempts.php';

$user = '';
$error = '';
if (is_post()) {
    $user = posted('user');
    $error = try_to_sign_in($user, text_of($_POST, 'password'));
    if ($error == '') {
        go_on(next_page(posted('next')), $user);
    }
}
show_sign_in(posted('next'), $user, $error, '', text_of($_POST, 'typed'), text_of($_POST, 'proof'));

// Signs in, or says why not.
function try_to_sign_in($user, $password)
{
    if (!has_sign_in_token()) {
        return 'The form was out of date. Please try again.';
    }
    $client = text_of($_SERVER, 'REMOTE_ADDR');
    $count = attempt_key($client, $user);
    $seconds = seconds_until_attempt($count);
    if ($seconds > 0) {
        write_audit($user, $client, 'Signing in was refused.', '', 'sign-in', array(), array(), 'refused: too many attempts');
        return wait_sentence($seconds);
    }
    if (role_by_password($user, $password) == '') {
        write_audit($user, $client, 'Signing in was refused.', '', 'sign-in', array(), array(),
            'refused: wrong name or password');
        return 'The name or the password is wrong.';
    }
    attempt_succeeded($count);
    open_session(); // which the new one takes the place of
    if (!begin_session_of($user)) {
        return 'The password is right, but nobody can be signed in: the disk is full or cannot be written.';
    }
    remember_browser($user);
    write_audit($user, $client, 'Signed in.', '', 'sign-in');
    return '';
}

function go_on($page, $user)
{
    $typed = text_of($_POST, 'typed');
    if (keep_typed($user, $page, $typed, text_of($_POST, 'proof'))) {
        go_to($page, 'You are signed in again. What you had typed is in the form below; nothing of it was applied yet.'
            . ' Passwords and communities are to be entered again.');
    }
    go_to($page, $typed == '' ? '' : 'What was typed before this sign-in is not shown: the form was somebody else\'s.');
}
