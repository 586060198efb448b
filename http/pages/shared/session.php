<?php
// Signing in and out, and what a request may do.

define('SESSIONS', PRIVATE_FOLDER . '/sessions');
define('IDLE_SECONDS', 900);

// The signed-in user. The module takes "user" into the audit trail.
class Session
{
    var $user;
    var $role;
}

// Under HTTPS one that browsers let nobody but HTTPS set.
function cookie_name()
{
    return is_https() ? '__Host-settings' : 'settings';
}

// PHP's own cookie has no HttpOnly and SameSite on every engine, so the cookie is sent here. Lax: who comes by a link
// from elsewhere stays signed in, and following a link changes nothing.
function send_cookie($value)
{
    header('Set-Cookie: ' . cookie_name() . '=' . $value . '; Path=/; HttpOnly; SameSite=Lax'
        . (is_https() ? '; Secure' : '') . ($value == '' ? '; Max-Age=0' : ''));
}

// Opens the session that the browser names, or a new one.
function open_session()
{
    $id = text_of($_COOKIE, cookie_name());
    start_session(preg_match('/^[A-Za-z0-9,-]{22,128}$/D', $id) ? $id : random_hex(16));
    if (!isset($_SESSION['token'])) {
        // An identifier that was not given out here is not taken up.
        if (session_id() == $id) {
            session_destroy();
            start_session(random_hex(16));
        }
        $_SESSION['token'] = random_hex(16);
    }
}

function start_session($id)
{
    ini_set('session.use_cookies', '0');
    ini_set('session.use_strict_mode', '1');
    ini_set('session.gc_probability', '1');
    ini_set('session.gc_divisor', '10');
    ini_set('session.gc_maxlifetime', (string) (2 * IDLE_SECONDS));
    make_private_folders();
    session_cache_limiter('');
    session_save_path(SESSIONS);
    session_id($id);
    session_start();
    if (session_id() != text_of($_COOKIE, cookie_name())) {
        send_cookie(session_id());
    }
}

// From here on the session is the user's, under an identifier that nobody knew before.
function begin_session_of($user)
{
    session_destroy();
    start_session(random_hex(16));
    $accounts = read_accounts();
    $_SESSION = array('user' => $user, 'account' => md5($accounts[$user]['hash']), 'https' => is_https(), 'seen' => time(),
        'token' => random_hex(16));
}

// Whether the session is that of an account which is still there, with the same password. One that has travelled
// unencrypted is of no use under HTTPS.
function is_session_of($accounts)
{
    if (!isset($_SESSION['user'], $_SESSION['account'], $_SESSION['https']) || !isset($accounts[$_SESSION['user']])) {
        return false;
    }
    return $_SESSION['account'] == md5($accounts[$_SESSION['user']]['hash']) && $_SESSION['https'] == is_https();
}

// Lets other requests of this session go on, which wait for one another. What is stored in it later is lost.
function leave_session()
{
    session_write_close();
    $GLOBALS['session_left'] = true;
}

function return_to_session()
{
    if (!empty($GLOBALS['session_left'])) {
        session_start();
        $GLOBALS['session_left'] = false;
    }
}

// Ends the session for later requests; this one goes on with what it knows of it.
function forget_session()
{
    return_to_session();
    session_destroy();
}

function end_session()
{
    $_SESSION = array();
    session_destroy();
    send_cookie('');
}

// The session of the signed-in user, who may do what the request asks for. Anybody else is asked to sign in first.
function signed_in()
{
    open_session();
    $accounts = read_accounts();
    if (!is_session_of($accounts)) {
        ask_to_sign_in('');
    }
    if (time() - $_SESSION['seen'] > IDLE_SECONDS) {
        // Not before somebody is told.
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
    if (is_post()) {
        check_change($session);
    }
    return $session;
}

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

// Names the user to the management services. The functions for SSL and for the SNMP agent do not do that themselves: the
// audit trail would show whom this process of the interpreter has served before.
function name_user_to_services($session)
{
    get_snmp_trap_regs($session);
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
        'notice' => $notice, 'accounts' => count(read_accounts())));
}

// A page to go on to after the sign-in: one of these pages, never an address from outside.
function next_page($wanted)
{
    return isset($GLOBALS['pages'][$wanted]) || $wanted == 'applying.php' ? $wanted : 'index.php';
}
