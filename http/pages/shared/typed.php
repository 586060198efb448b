<?php
// What was typed into a form whose session had ended. It goes through the sign-in in hidden fields and is shown in the form
// again; it is applied only when it is sent again. Passwords and communities do not go along. The form carries a proof of
// whom it was made for: nobody else gets to see what was typed, and no other site can fill in a form.

define('TYPED_BYTES', 16384); // that go along at most

$typed_before = array('page' => '', 'values' => array()); // what this request fills in again
$form_typed_before = array(); // of the form that is being written

// Nobody without the account's hash, which never leaves the appliance, can make it; it says nothing about the hash.
function proof_of_form($user, $page)
{
    $accounts = read_accounts();
    $hash = isset($accounts[$user]) ? $accounts[$user]['hash'] : '';
    return $hash == '' ? '' : sha1($hash . sha1($hash . "\nform\n" . $user . "\n" . $page));
}

function proof_field($page)
{
    return '<input type="hidden" name="proof" value="' . h(proof_of_form($GLOBALS['session']->user, $page)) . '">';
}

// The values that this request has sent, as one text; '' when they came from no form with a proof, or are too many.
function typed_values()
{
    $pairs = array();
    foreach ($_POST as $name => $value) {
        $value = text_of($_POST, $name);
        if (!in_array($name, array('token', 'proof', 'again')) && !is_secret_field($name, $value)) {
            $pairs[] = urlencode($name) . '=' . urlencode($value);
        }
    }
    $text = implode('&', $pairs);
    return preg_match('/^[0-9a-f]{40}$/D', text_of($_POST, 'proof')) && strlen($text) <= TYPED_BYTES ? $text : '';
}

// Also what the form showed, when a secret is among that.
function is_secret_field($name, $value)
{
    return preg_match('/password|passphrase|community/i', $name) || $name == 'seen' && preg_match('/community=/i', $value);
}

// Keeps what was typed for the page that comes next. Returns whether it was typed by this user.
function keep_typed($user, $page, $text, $proof)
{
    if ($text == '' || strlen($text) > TYPED_BYTES || !same_text($proof, proof_of_form($user, $page))) {
        return false;
    }
    $_SESSION['typed'] = array('page' => $page, 'text' => $text);
    return true;
}

// For the page that asks, once.
function take_up_typed()
{
    if (is_post() || !isset($_SESSION['typed']) || $_SESSION['typed']['page'] != this_page()) {
        return;
    }
    $values = array();
    foreach (explode('&', $_SESSION['typed']['text']) as $pair) {
        $parts = explode('=', $pair);
        if (count($parts) == 2) {
            $values[urldecode($parts[0])] = urldecode($parts[1]);
        }
    }
    $GLOBALS['typed_before'] = array('page' => $_SESSION['typed']['page'], 'values' => $values);
    unset($_SESSION['typed']);
}

// To be called when a form begins. Returns whether it is the one that had been typed into.
function fill_again($page, $change)
{
    $before = $GLOBALS['typed_before'];
    $is_it = $before['page'] == $page && isset($before['values']['change']) && $before['values']['change'] == $change;
    $GLOBALS['form_typed_before'] = $is_it ? $before['values'] : array();
    return $is_it;
}

function fill_no_more()
{
    $GLOBALS['form_typed_before'] = array();
}

// What had been typed into this field, else $value. $missing: what it means that the form sent nothing for it.
function typed_again($name, $value, $missing = null)
{
    $form = $GLOBALS['form_typed_before'];
    if (isset($form[$name])) {
        return $form[$name];
    }
    return $form && $missing !== null ? $missing : $value;
}
