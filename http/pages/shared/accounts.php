<?php
// Who may sign in: lines of name, role ("admin" or "monitor") and password hash, joined by ":".

define('ACCOUNTS_FILE', PRIVATE_FOLDER . '/users');
define('ACCOUNTS_LOCK', PRIVATE_FOLDER . '/users.lock');
define('LONGEST_PASSWORD', 72); // what the hash looks at
define('SHORTEST_PASSWORD', 10); // of those that people choose

// Characters from which on a password is called so.
$password_strengths = array(SHORTEST_PASSWORD => 'Enough', 14 => 'Good', 20 => 'Strong');

// name => array of 'role' and 'hash'; empty before the first start's passwords are made.
function read_accounts()
{
    $accounts = array();
    if (!is_readable(ACCOUNTS_FILE)) {
        return $accounts;
    }
    foreach (file(ACCOUNTS_FILE) as $line) {
        $parts = explode(':', trim($line), 3);
        if (count($parts) == 3) {
            list($name, $role, $hash) = $parts;
            $accounts[$name] = array('role' => $role, 'hash' => $hash);
        }
    }
    return $accounts;
}

// Makes an account for each role when there is none yet, and prints each name and its password, which is not
// kept. Prints nothing when there are accounts.
function make_first_accounts()
{
    make_private_folders();
    $lock = open_locked(ACCOUNTS_LOCK);
    if (read_accounts()) {
        return;
    }
    $lines = '';
    $names_and_passwords = '';
    foreach (array('admin', 'monitor') as $role) {
        $password = random_password();
        $hash = hash_password($password);
        if ($hash == '') {
            give_up('This interpreter has no password hash that is strong enough.');
        }
        $lines .= $role . ':' . $role . ':' . $hash . "\n";
        $names_and_passwords .= $role . ' ' . $password . "\n";
    }
    if (!$lock || !replace_file(ACCOUNTS_FILE, $lines, true)) {
        give_up('The accounts cannot be written to ' . ACCOUNTS_FILE . '.');
    }
    echo $names_and_passwords;
}

// Gives the account another password, which ends all its sessions: they are bound to the hash. The file is replaced whole, one
// change after the other; where that fails the old password is still good. Returns what was wrong, or ''.
function set_password($name, $password)
{
    $hash = hash_password($password);
    if ($hash == '') {
        return 'This interpreter has no password hash that is strong enough.';
    }
    $lock = open_locked(ACCOUNTS_LOCK);
    if (!$lock) {
        return 'The password was not changed: ' . ACCOUNTS_LOCK . ' cannot be locked.';
    }
    clearstatcache();
    $lines = is_readable(ACCOUNTS_FILE) ? file(ACCOUNTS_FILE) : array();
    $found = false;
    foreach ($lines as $i => $line) {
        $parts = explode(':', trim($line), 3);
        if (count($parts) == 3 && $parts[0] === (string) $name) {
            $lines[$i] = $parts[0] . ':' . $parts[1] . ':' . $hash . "\n";
            $found = true;
        }
    }
    remove_unfinished(ACCOUNTS_FILE);
    $written = $found && replace_file(ACCOUNTS_FILE, implode('', $lines), true);
    fclose($lock);
    if ($written) {
        return '';
    }
    return $found ? 'The password was not changed: the disk is full or cannot be written. The old one is still good.'
        : 'There is no account of this name any longer.';
}

// Gives a new password to somebody who has lost theirs, prints it after the name, and ends the account's sessions. Only who may
// write the appliance's files gets here.
function reset_password($name)
{
    $accounts = read_accounts();
    if (!$accounts) {
        give_up('There are no accounts in ' . ACCOUNTS_FILE . ' yet: the first start makes them.');
    }
    if (!isset($accounts[$name])) {
        give_up('There is no account of the name "' . printable($name) . '"; there are: '
            . implode(', ', array_keys($accounts)) . '.');
    }
    $password = random_password();
    $error = set_password($name, $password);
    if ($error != '') {
        give_up($error);
    }
    end_sessions_of($name);
    forget_browsers_of($name);
    write_audit($name, '', 'The password of ' . $name . ' was set anew on the appliance itself.', '', 'account');
    echo $name . ' ' . $password . "\n";
}

function printable($text)
{
    return preg_replace('/[^\x20-\x7e]/', '?', substr($text, 0, 100));
}

// What is wrong with a password that somebody has chosen, or ''.
function password_error($password, $name)
{
    $characters = characters_of($password);
    if ($password == '') {
        return 'Enter a password.';
    }
    if (preg_match('/[\x00-\x1f\x7f]/', $password)) {
        return 'Use no control characters, such as line ends.';
    }
    if ($characters < SHORTEST_PASSWORD) {
        return 'Too short: it has ' . $characters . ($characters == 1 ? ' character' : ' characters') . ' and needs at least '
            . SHORTEST_PASSWORD . '.';
    }
    if (strlen($password) > LONGEST_PASSWORD) {
        return 'Too long: at most ' . LONGEST_PASSWORD . ' bytes are looked at, and this has ' . strlen($password) . '.';
    }
    return is_easily_guessed($password, $name) ? 'Weak: it is among the first that are tried. Take several words that have'
        . ' nothing to do with one another.' : '';
}

// The name, a well-known word or a row of the keyboard with little else, or few different characters.
function is_easily_guessed($password, $name)
{
    $rest = str_replace(array(strtolower($name), 'password', 'passwort', 'administrator', 'admin', 'letmein', 'welcome',
        'qwertyuiop', 'qwertzuiop', 'qwerty', 'qwertz', 'asdfghjkl', 'asdfgh', 'yxcvbnm', 'zxcvbnm', '1234567890', '0123456789',
        '123456789', '12345678', '123456', '987654321', 'abcdefghij', 'abcdef', 'library'), '', strtolower($password));
    $different = array();
    for ($i = 0; $i < strlen($rest); $i++) {
        $different[$rest[$i]] = true;
    }
    return strlen($rest) < 6 || count($different) < 5;
}

// How strong a password is that has nothing wrong.
function password_strength($password)
{
    $strength = '';
    foreach ($GLOBALS['password_strengths'] as $characters => $word) {
        $strength = characters_of($password) >= $characters ? $word : $strength;
    }
    return $strength;
}

// Characters of UTF-8, not bytes.
function characters_of($text)
{
    return strlen(preg_replace('/[\x80-\xbf]/', '', $text));
}

// The strongest hash that this engine has; '' when it has none but the historic one.
function hash_password($password)
{
    if (function_exists('password_hash')) {
        return password_hash($password, PASSWORD_BCRYPT);
    }
    $salt = substr(random_hex(11), 0, 22);
    foreach (array('$2a$10$', '$6$', '$5$', '$1$') as $method) {
        $hash = crypt($password, $method . $salt . '$');
        if (strlen($hash) > 30 && substr($hash, 0, strlen($method)) == $method) {
            return $hash;
        }
    }
    return '';
}

// The role of the account when the password is right, else ''. A name that does not exist takes as long as one
// that does.
function role_by_password($name, $password)
{
    $accounts = read_accounts();
    $known = isset($accounts[$name]);
    $account = $known ? $accounts[$name] : reset($accounts);
    $right = $account && strlen($password) <= LONGEST_PASSWORD && strlen($account['hash']) > 30
        && same_text(crypt($password, $account['hash']), $account['hash']);
    return $known && $right ? $account['role'] : '';
}

// Compares in a time that does not tell where the texts differ.
function same_text($one, $other)
{
    $difference = strlen($one) ^ strlen($other);
    for ($i = 0; $i < strlen($one) && $i < strlen($other); $i++) {
        $difference |= ord($one[$i]) ^ ord($other[$i]);
    }
    return $difference == 0;
}
