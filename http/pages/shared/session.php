<?php
// The browser's session: its cookie, whose it is, and how it begins and ends.

define('IDLE_SECONDS', 900);

// Under HTTPS a name with the prefix for which browsers take a cookie from HTTPS only.
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
    session_save_path(SESSIONS_FOLDER);
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
        'signed_in' => time(), 'token' => random_hex(16));
}

// Whether the session is that of an account which is still there, with the same password. One that has travelled
// unencrypted is of no use under HTTPS.
function is_session_of_an_account($accounts)
{
    if (!isset($_SESSION['user'], $_SESSION['account'], $_SESSION['https']) || !isset($accounts[$_SESSION['user']])) {
        return false;
    }
    return $_SESSION['account'] == md5($accounts[$_SESSION['user']]['hash']) && $_SESSION['https'] == is_https();
}

// Requests of one session wait for one another: lets the others go on. What this one stores in the session from now on
// is lost.
function leave_session()
{
    if (session_id() == '') {
        return; // none was opened
    }
    session_write_close();
    $GLOBALS['session_left'] = true;
}

// Takes up a session that was left, so that something can be stored in it.
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
