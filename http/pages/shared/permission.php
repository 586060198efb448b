<?php
// Who is signed in, and what a request may do.

// The signed-in user, in the form that the module's functions want: the audit trail gets "user".
class Session
{
    var $user;
    var $role; // "admin" may change settings, any other may read them
}

// The session object of the signed-in user, who may do what the request asks for. Anybody else is asked to sign in first.
function signed_in()
{
    advance_trial(); // whoever asks: the watcher may have been ended
    keep_if_mode_is_reached();
    open_session();
    $accounts = read_accounts();
    if (!is_session_of_an_account($accounts)) {
        ask_to_sign_in('');
    }
    if (time() - $_SESSION['seen'] > IDLE_SECONDS) {
        // A request in the background leaves it as it is, so that the next one is told why.
        if (!is_background()) {
            $_SESSION = array('token' => random_hex(16));
        }
        ask_to_sign_in('You were signed out after ' . (int) (IDLE_SECONDS / 60) . ' minutes without activity.');
    }
    if (is_background()) {
        leave_session();
    } else {
        $_SESSION['seen'] = time();
    }
    $session = new Session();
    $session->user = $_SESSION['user'];
    $session->role = $accounts[$session->user]['role'];
    $GLOBALS['session'] = $session;
    keep_if_back($session);
    if (is_post()) {
        check_change($session);
    }
    return $session;
}

// Refuses a change that was not sent by a form of this session, or by somebody who may only look.
function check_change($session)
{
    if (!has_token()) {
        refuse('403 Forbidden', 'Nothing was changed', 'The form is out of date, or it did not come from these pages.'
            . ' Open the page again and repeat the change.');
    }
    if (!may_change($session)) {
        refuse('403 Forbidden', 'Nothing was changed', 'You are signed in as ' . $session->user
            . ', who may look at everything and change nothing.');
    }
}

function may_change($session)
{
    return $session->role == 'admin';
}

// Whether the request was sent by a form of this session.
function has_token()
{
    return isset($_SESSION['token']) && same_text(text_of($_POST, 'token'), $_SESSION['token']);
}

// In the place of the page that was asked for, which comes after the sign-in. What was sent to it is lost.
function ask_to_sign_in($notice)
{
    if (is_post()) {
        header('HTTP/1.1 403 Forbidden');
        $notice = trim($notice . ' What you sent was not saved: please enter it again.');
    }
    show_sign_in(basename(text_of($_SERVER, 'SCRIPT_NAME')), '', '', $notice);
}

function show_sign_in($next, $user, $error, $notice)
{
    show('signin', array('title' => 'Sign in', 'next' => next_page($next), 'user' => $user, 'error' => $error,
        'notice' => trim($notice . ' ' . trial_at_sign_in()), 'accounts' => count(read_accounts())));
}

// A page to go on to after the sign-in: one of these pages, never an address from outside.
function next_page($wanted)
{
    return isset($GLOBALS['pages'][$wanted]) || $wanted == 'applying.php' ? $wanted : 'index.php';
}
