<?php
require dirname(dirname(__FILE__)) . '/shared/page.php';
require dirname(dirname(__FILE__)) . '/shared/attempts.php';

// The password and the sessions of whoever is signed in, which are everybody's own; for the role admin also the passwords of the
// other accounts.
$session = signed_in(true);
if (text_of($_GET, 'seconds') == '1') {
    tell_seconds_of_session();
}
$errors = array();
$change = posted('change');
if (is_post() && $change == 'own') {
    $errors = change_own_password($session);
} elseif (is_post() && $change == 'other') {
    $errors = change_other_password($session, posted('name'));
} elseif (is_post() && $change == 'sessions') {
    end_own_sessions($session);
}
$others = array();
foreach (may_change($session) ? read_accounts() : array() as $name => $account) {
    if ((string) $name !== $session->user) {
        $others[] = (string) $name;
    }
}
show('account', array('title' => 'Account', 'errors' => $errors, 'change' => $change, 'others' => $others,
    'sessions' => sessions_of($session->user), 'lead' => 'Your password, and where you are signed in.'));

// For the warning before the session ends. Asked in the background it is no activity, else the session goes on.
function tell_seconds_of_session()
{
    $seconds = seconds_of_session();
    send_headers();
    header('Content-Type: text/plain; charset=utf-8');
    echo $seconds['idle'] . ' ' . $seconds['at_most'];
    exit;
}

function change_own_password($session)
{
    $new = text_of($_POST, 'new_password');
    $errors = errors_of_new_password('', $session->user);
    if (!$errors && $new === text_of($_POST, 'old_password')) {
        $errors['new_password'] = 'This is the old password.';
    }
    $wrong = $errors ? '' : error_of_own_password($session, 'old_password', $session->user);
    if ($wrong != '') {
        $errors['old_password'] = $wrong;
    }
    $failed = $errors ? '' : set_password($session->user, $new);
    if ($failed != '') {
        $errors['new_password'] = $failed;
    }
    if ($errors) {
        return $errors;
    }
    $goes_on = renew_session();
    end_sessions_of($session->user, session_id());
    forget_browsers_of($session->user);
    remember_browser($session->user);
    write_audit($session->user, text_of($_SERVER, 'REMOTE_ADDR'), 'The password of ' . $session->user . ' was changed.', '',
        'account');
    go_to($goes_on ? 'account.php' : 'signin.php', 'Your password is changed. ' . strength_sentence($new)
        . ' All your other sessions have ended.');
}

// An admin gives somebody else a password. Their own is asked for, in case this browser was left alone.
function change_other_password($session, $name)
{
    $new = text_of($_POST, 'other_password');
    $accounts = read_accounts();
    if (!may_change($session) || !isset($accounts[$name])) {
        audit_refusal($session, 'rights', 'Changing the password of another account was refused.',
            may_change($session) ? 'there is no such account' : 'the role may only look');
        refuse('403 Forbidden', 'Nothing was changed', 'Only the role admin may set the password of another account.');
    }
    $errors = errors_of_new_password('other_', $name);
    $wrong = $errors ? '' : error_of_own_password($session, 'own_password', $name);
    if ($wrong != '') {
        $errors['own_password'] = $wrong;
    }
    $failed = $errors ? '' : set_password($name, $new);
    if ($failed != '') {
        $errors['other_password'] = $failed;
    }
    if ($errors) {
        return $errors;
    }
    end_sessions_of($name, $name === $session->user && renew_session() ? session_id() : '');
    forget_browsers_of($name);
    write_audit($session->user, text_of($_SERVER, 'REMOTE_ADDR'), 'The password of ' . $name . ' was changed.', '', 'account');
    go_to('account.php', 'The password of ' . $name . ' is changed. ' . strength_sentence($new) . ' All sessions of ' . $name
        . ' have ended.');
}

// What is wrong with the new password or with its repetition: field => sentence. $prefix is '' or 'other_'.
function errors_of_new_password($prefix, $name)
{
    $field = $prefix == '' ? 'new_password' : $prefix . 'password';
    $new = text_of($_POST, $field);
    $error = password_error($new, $name);
    if ($error != '') {
        return array($field => $error);
    }
    return $new === text_of($_POST, $prefix . 'password_again') ? array()
        : array($prefix . 'password_again' => 'The two are not the same.');
}

// Guesses have to wait longer and longer here, too, and are in the audit. $account: whose password is to be changed.
function error_of_own_password($session, $field, $account)
{
    $count = session_attempt_key();
    $seconds = seconds_until_attempt($count);
    $what = 'Changing the password of ' . $account . ' was refused.';
    if ($seconds > 0) {
        audit_refusal($session, 'account', $what, 'too many attempts');
        return wait_sentence($seconds);
    }
    if (role_by_password($session->user, text_of($_POST, $field)) == '') {
        audit_refusal($session, 'account', $what, 'wrong own password');
        return 'This is not your password.';
    }
    attempt_succeeded($count);
    return '';
}

function strength_sentence($password)
{
    return 'Its strength: ' . strtolower(password_strength($password)) . '.';
}

// This session, too.
function end_own_sessions($session)
{
    end_sessions_of($session->user);
    end_session();
    write_audit($session->user, text_of($_SERVER, 'REMOTE_ADDR'), 'All sessions of ' . $session->user . ' were ended.', '',
        'account');
    go_to('signin.php');
}
