<?php
// Who may sign in: lines of name, role ("admin" or "monitor") and password hash, joined by ":".

define('ACCOUNTS_FILE', PRIVATE_FOLDER . '/users');
define('LONGEST_PASSWORD', 72); // what the hash looks at

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
    if (read_accounts()) {
        return;
    }
    make_private_folders();
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
    if (!replace_file(ACCOUNTS_FILE, $lines)) {
        give_up('The accounts cannot be written to ' . ACCOUNTS_FILE . '.');
    }
    echo $names_and_passwords;
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
