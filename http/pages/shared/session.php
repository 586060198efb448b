<?php
// The browser's session: its cookie, whose it is, and how it begins and ends.

define('IDLE_SECONDS', 900);
define('LONGEST_SECONDS', 43200); // whatever its user does
define('WARNING_SECONDS', 120); // before its end

// Under HTTPS a name with the prefix for which browsers take a cookie from HTTPS only.
function cookie_name($which = 'settings')
{
    return (is_https() ? '__Host-' : '') . $which;
}

// PHP's own cookie has no HttpOnly and SameSite on every engine, so cookies are sent here. Lax: who comes by a link
// from elsewhere stays signed in, and following a link changes nothing. $seconds: how long the browser keeps it; 0: until
// it is closed.
function send_cookie($which, $value, $seconds = 0, $same_site = 'Lax')
{
    header('Set-Cookie: ' . cookie_name($which) . '=' . $value . '; Path=/; HttpOnly; SameSite=' . $same_site
        . (is_https() ? '; Secure' : '') . ($value == '' ? '; Max-Age=0' : ($seconds > 0 ? '; Max-Age=' . $seconds : '')),
        false);
}

// Opens the session that the browser names. Returns whether there is one: only a sign-in makes one, and an identifier that was
// not given out here is not taken up.
function open_session()
{
    $_SESSION = array();
    $id = text_of($_COOKIE, cookie_name());
    if (!preg_match('/^[A-Za-z0-9,-]{22,128}$/D', $id) || !is_file(session_file($id))) {
        return false;
    }
    start_session($id);
    if (session_id() == $id && isset($_SESSION['user'], $_SESSION['token'])) {
        return true;
    }
    // It ended this very moment, or its file is damaged, so that the interpreter has no session to end.
    @session_destroy();
    @unlink(session_file($id));
    $_SESSION = array();
    return false;
}

function session_file($id)
{
    return SESSIONS_FOLDER . '/sess_' . $id;
}

function start_session($id)
{
    ini_set('session.use_cookies', '0');
    ini_set('session.use_strict_mode', '1');
    ini_set('session.serialize_handler', 'php'); // that facts_of_session() reads
    ini_set('session.gc_probability', '1');
    ini_set('session.gc_divisor', '10');
    ini_set('session.gc_maxlifetime', (string) (2 * IDLE_SECONDS));
    make_private_folders();
    session_cache_limiter('');
    session_save_path(SESSIONS_FOLDER);
    session_id($id);
    @session_start(); // begin_session() looks whether that worked
}

// From here on the session is the user's, under an identifier that nobody knew before. Sessions of before HTTPS was switched on
// or off end: they would be of use again when it is switched back. Returns whether the session could be stored.
function begin_session_of($user)
{
    end_sessions_of_mode(!is_https());
    $accounts = read_accounts();
    // facts_of_session() knows this order.
    return begin_session(array('user' => $user, 'account' => md5($accounts[$user]['hash']), 'https' => is_https(),
        'seen' => time(), 'signed_in' => time(), 'client' => plain_address(text_of($_SERVER, 'REMOTE_ADDR')),
        'token' => random_hex(16)));
}

// In the place of the session that is open, if one is.
function begin_session($values)
{
    if (session_id() != '') {
        session_destroy();
    }
    start_session(random_hex(16));
    $_SESSION = $values;
    $id = session_id();
    @session_write_close();
    clearstatcache();
    if (!is_file(session_file($id)) || filesize(session_file($id)) == 0) {
        $_SESSION = array();
        return false;
    }
    session_id($id);
    session_start();
    send_cookie('settings', $id);
    return true;
}

// The same session under another identifier, bound to the account's password of now.
function renew_session()
{
    if (!return_to_session()) {
        return false; // somebody has ended it
    }
    $accounts = read_accounts();
    $values = $_SESSION;
    $values['account'] = md5($accounts[$values['user']]['hash']);
    return begin_session($values);
}

// Whether the session is that of an account which is still there, with the same password. One that has travelled
// unencrypted is of no use under HTTPS.
function is_session_of_an_account($accounts)
{
    if (!isset($_SESSION['user'], $_SESSION['account'], $_SESSION['https'], $_SESSION['seen'], $_SESSION['signed_in'],
        $_SESSION['client']) || !isset($accounts[$_SESSION['user']])) {
        return false;
    }
    return $_SESSION['account'] == md5($accounts[$_SESSION['user']]['hash']) && $_SESSION['https'] == is_https();
}

// Why the open session is over by now, or ''.
function why_session_is_over()
{
    if (time() - $_SESSION['seen'] > IDLE_SECONDS) {
        return 'after ' . (int) (IDLE_SECONDS / 60) . ' minutes without activity';
    }
    return time() - $_SESSION['signed_in'] > LONGEST_SECONDS
        ? 'because a session lasts ' . (int) (LONGEST_SECONDS / 3600) . ' hours at most' : '';
}

// Until the open session ends when nothing is done, and until it ends in any case.
function seconds_of_session()
{
    if (!isset($_SESSION['signed_in'], $_SESSION['seen'])) {
        return array('idle' => 0, 'at_most' => 0); // ended meanwhile, by another request
    }
    $at_most = max(0, $_SESSION['signed_in'] + LONGEST_SECONDS - time());
    return array('idle' => max(0, min($at_most, $_SESSION['seen'] + IDLE_SECONDS - time())), 'at_most' => $at_most);
}

// What is known of a stored session: array of 'user', 'https', 'seen', 'signed_in' and 'client'; false when it cannot be read.
function facts_of_session($id)
{
    $file = @fopen(session_file($id), 'rb');
    $text = $file ? fread($file, 4096) : '';
    if ($file) {
        fclose($file);
    }
    $order = '/^user\|s:[0-9]+:"(.*?)";account\|s:32:"[0-9a-f]{32}";https\|b:([01]);seen\|i:([0-9]+);signed_in\|i:([0-9]+);'
        . 'client\|s:[0-9]+:"([0-9a-f.:]*)";/';
    if (!preg_match($order, $text, $found)) {
        return false;
    }
    return array('user' => $found[1], 'https' => $found[2] == '1', 'seen' => (int) $found[3],
        'signed_in' => (int) $found[4], 'client' => $found[5]);
}

function session_ids()
{
    $ids = array();
    $folder = is_dir(SESSIONS_FOLDER) ? opendir(SESSIONS_FOLDER) : false;
    while ($folder && ($name = readdir($folder)) !== false) {
        if (substr($name, 0, 5) == 'sess_') {
            $ids[] = substr($name, 5);
        }
    }
    if ($folder) {
        closedir($folder);
    }
    return $ids;
}

// The sessions of an account that have not ended, the newest first: identifier => facts.
function sessions_of($user)
{
    $times = array();
    $sessions = array();
    foreach (session_ids() as $id) {
        $facts = facts_of_session($id);
        if ($facts && $facts['user'] == $user && $facts['https'] == is_https() && time() - $facts['seen'] <= IDLE_SECONDS
            && time() - $facts['signed_in'] <= LONGEST_SECONDS) {
            $sessions[$id] = $facts;
            $times[$id] = $facts['signed_in'];
        }
    }
    arsort($times);
    $sorted = array();
    foreach ($times as $id => $time) {
        $sorted[$id] = $sessions[$id];
    }
    return $sorted;
}

// Ends all sessions of an account but one. What cannot be read, because it is being written, ends too.
function end_sessions_of($user, $but = '')
{
    foreach (session_ids() as $id) {
        $facts = facts_of_session($id);
        if ($id != $but && (!$facts || $facts['user'] == $user)) {
            @unlink(session_file($id));
        }
    }
}

// Ends all sessions that were begun by HTTPS, or all that were not.
function end_sessions_of_mode($https)
{
    foreach (session_ids() as $id) {
        $facts = facts_of_session($id);
        if ($facts && $facts['https'] == $https) {
            @unlink(session_file($id));
        }
    }
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

// Takes up a session that was left, so that something can be stored in it. Returns whether it is still there: it may have been
// ended meanwhile, and this request goes on with what it knows of it.
function return_to_session()
{
    if (empty($GLOBALS['session_left'])) {
        return true;
    }
    $id = session_id();
    clearstatcache();
    if (!is_file(session_file($id))) {
        return false;
    }
    $GLOBALS['session_left'] = false;
    $known = $_SESSION;
    @session_start();
    if (session_id() == $id && isset($_SESSION['user'])) {
        return true;
    }
    @session_destroy(); // it ended this very moment
    $GLOBALS['session_left'] = true;
    $_SESSION = $known;
    return false;
}

// Ends the session for later requests; this one goes on with what it knows of it.
function forget_session()
{
    if (return_to_session()) {
        session_destroy();
    }
}

function end_session()
{
    $_SESSION = array();
    session_destroy();
    send_cookie('settings', '');
}
