<?php
// Who is signed in, and what a request may do.

// The signed-in user, in the form that the module's functions want: the audit trail gets "user".
class Session
{
    var $user;
    var $role; // "admin" may change settings, any other may read them
}

// The session object of the signed-in user, who may do what the request asks for. Anybody else is asked to sign in first.
// $for_everybody: what the page changes is everybody's own.
function signed_in($for_everybody = false)
{
    advance_trial(); // whoever asks: the watcher may have been ended
    keep_if_mode_is_reached();
    if (!open_session()) {
        ask_to_sign_in('');
    }
    $accounts = read_accounts();
    if (!is_session_of_an_account($accounts)) {
        end_session();
        ask_to_sign_in('');
    }
    $why = why_session_is_over();
    if ($why != '') {
        // A request in the background leaves it as it is, so that the next one is told why.
        if (!is_background()) {
            write_audit($_SESSION['user'], $_SESSION['client'], 'The session ended ' . $why . '.', '', 'sign-in');
            end_session();
        }
        ask_to_sign_in('You were signed out ' . $why . '.');
    }
    $session = new Session();
    $session->user = $_SESSION['user'];
    $session->role = $accounts[$session->user]['role'];
    $GLOBALS['session'] = $session;
    if (is_background()) {
        leave_session();
    } else {
        $_SESSION['seen'] = time();
        take_up_typed();
    }
    keep_if_back($session);
    if (is_post()) {
        check_change($session, $for_everybody);
    }
    return $session;
}

// Refuses a change that was not sent by a form of this session, or by somebody who may only look.
function check_change($session, $for_everybody)
{
    if (!has_token()) {
        keep_typed($session->user, this_page(), typed_values(), text_of($_POST, 'proof'));
        refuse('403 Forbidden', 'Nothing was changed', 'The form is out of date, or it did not come from these pages.'
            . ' Open the page again and repeat the change.');
    }
    if (!$for_everybody && !may_change($session)) {
        audit_refusal($session, 'rights', 'A request of the page "' . title_of_page(this_page()) . '" was refused.',
            'the role may only look');
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

// In the place of the page that was asked for, which comes after the sign-in. What was typed into its form is shown again then.
function ask_to_sign_in($notice)
{
    $typed = '';
    if (is_post()) {
        header('HTTP/1.1 403 Forbidden');
        $typed = typed_values();
        $notice = trim($notice . ($typed == '' ? ' What you sent was not saved: please enter it again.'
            : ' What you sent was not saved. It is in the form again when you have signed in.'));
    }
    show_sign_in(this_page(), '', '', $notice, $typed, text_of($_POST, 'proof'));
}

// $typed and $proof: what was typed into the page's form, and whose form it was.
function show_sign_in($next, $user, $error, $notice, $typed = '', $proof = '')
{
    show('signin', array('title' => 'Sign in', 'next' => next_page($next), 'user' => $user, 'error' => $error,
        'notice' => trim($notice . ' ' . trial_at_sign_in()), 'typed' => $typed, 'proof' => $proof, 'token' => sign_in_token(true),
        'accounts' => count(read_accounts())));
}

// The form of the sign-in has no session. Its token comes of a cookie that no other site can read, set or have sent. $make:
// gives the browser the cookie when it has none.
function sign_in_token($make = false)
{
    $secret = text_of($_COOKIE, cookie_name('settings-form'));
    if (!preg_match('/^[0-9a-f]{32}$/D', $secret)) {
        if (!$make || is_background()) {
            return '';
        }
        $secret = random_hex(16);
        send_cookie('settings-form', $secret, 0, 'Strict');
    }
    return sha1('sign-in ' . $secret);
}

function has_sign_in_token()
{
    $token = sign_in_token();
    return $token != '' && same_text(text_of($_POST, 'token'), $token);
}

function this_page()
{
    return basename(text_of($_SERVER, 'SCRIPT_NAME'));
}

// As the menu has it; some pages are not there.
function title_of_page($page)
{
    return isset($GLOBALS['pages'][$page]) ? $GLOBALS['pages'][$page] : $page;
}

// A page to go on to after the sign-in: one of these pages, never an address from outside.
function next_page($wanted)
{
    return isset($GLOBALS['pages'][$wanted]) || $wanted == 'applying.php' ? $wanted : 'index.php';
}
