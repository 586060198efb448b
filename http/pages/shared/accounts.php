<?php
// Who may sign in: lines of name, role ("admin" or "monitor") and password hash, joined by ":".

define('ACCOUNTS', PRIVATE_FOLDER . '/users');
define('ATTEMPTS', PRIVATE_FOLDER . '/attempts');
define('LONGEST_PASSWORD', 72); // what the hash looks at
define('SLOWEST_SECONDS', 60);

// name => array of 'role' and 'hash'; empty before the first start's passwords are made.
function read_accounts()
{
    $accounts = array();
    if (!is_readable(ACCOUNTS)) {
        return $accounts;
    }
    foreach (file(ACCOUNTS) as $line) {
        $parts = explode(':', trim($line), 3);
        if (count($parts) == 3) {
            $accounts[$parts[0]] = array('role' => $parts[1], 'hash' => $parts[2]);
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
    $said = '';
    foreach (array('admin', 'monitor') as $role) {
        $password = random_password();
        $hash = hash_password($password);
        if ($hash == '') {
            give_up('This interpreter has no password hash that is strong enough.');
        }
        $lines .= $role . ':' . $role . ':' . $hash . "\n";
        $said .= $role . ' ' . $password . "\n";
    }
    if (!replace_file(ACCOUNTS, $lines)) {
        give_up('The accounts cannot be written to ' . ACCOUNTS . '.');
    }
    echo $said;
}

// Ends what cannot go on safely.
function give_up($reason)
{
    error_log($reason);
    if (php_sapi_name() == 'cli') {
        exit(1);
    }
    refuse('500 Internal Server Error', 'The appliance cannot go on', $reason);
}

// A file is whole at every moment.
function replace_file($path, $content)
{
    $new = $path . '.' . random_hex(4);
    $mask = umask(077);
    $file = fopen($new, 'wb');
    $written = $file && fwrite($file, $content) == strlen($content) && fflush($file) && fclose($file);
    umask($mask);
    if ($written && rename($new, $path)) {
        return true;
    }
    if ($file) {
        unlink($new);
    }
    return false;
}

function random_bytes_of_kernel($count)
{
    $random = fopen('/dev/urandom', 'rb');
    $bytes = $random ? fread($random, $count) : '';
    if (strlen($bytes) != $count) {
        give_up('There are no random numbers from /dev/urandom.');
    }
    fclose($random);
    return $bytes;
}

function random_hex($bytes)
{
    return bin2hex(random_bytes_of_kernel($bytes));
}

// 80 random bits in characters that are hard to mistake for one another.
function random_password()
{
    $alphabet = 'abcdefghijkmnpqrstuvwxyz23456789';
    $password = '';
    $bytes = random_bytes_of_kernel(16);
    for ($i = 0; $i < 16; $i++) {
        $password .= ($i > 0 && $i % 4 == 0 ? '-' : '') . $alphabet[ord($bytes[$i]) % 32];
    }
    return $password;
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

// The seconds that this client has to wait before it may try to sign in under this name; 0 when it may now. The
// attempt counts as a failed one at once, so that many at a time gain nothing; attempt_succeeded() takes that back.
function seconds_until_attempt($client, $name)
{
    $file = open_attempts();
    $attempts = read_attempts($file);
    $key = attempt_key($client, $name);
    $count = isset($attempts[$key]) ? $attempts[$key]['count'] : 0;
    $wait = 0;
    if ($count > 0) {
        $since = time() - $attempts[$key]['time'];
        $pause = min(SLOWEST_SECONDS, $count > 2 ? 1 << min(10, $count - 2) : 1);
        // A clock that was set back does not lock anybody out.
        $wait = $since < 0 ? 0 : max(0, $pause - $since);
    }
    if ($wait == 0) {
        $attempts[$key] = array('count' => $count + 1, 'time' => time());
    }
    write_attempts($file, $attempts);
    return $wait;
}

function attempt_succeeded($client, $name)
{
    $file = open_attempts();
    $attempts = read_attempts($file);
    unset($attempts[attempt_key($client, $name)]);
    write_attempts($file, $attempts);
}

// Each account by itself: who may sign in to one gains no attempts at another. All names that do not exist are one.
function attempt_key($client, $name)
{
    $accounts = read_accounts();
    return network_of(plain_address($client)) . '/' . (isset($accounts[$name]) ? urlencode($name) : '');
}

// A client with IPv6 has a whole network of addresses to try from.
function network_of($client)
{
    $bytes = ipv6_bytes($client);
    if (!$bytes) {
        return preg_replace('/[^0-9A-Za-z.]/', '', $client);
    }
    $network = '';
    for ($i = 0; $i < 8; $i++) {
        $network .= sprintf('%02x', $bytes[$i]);
    }
    return $network;
}

function open_attempts()
{
    $mask = umask(077);
    $file = fopen(ATTEMPTS, 'a+b');
    umask($mask);
    if (!$file || !flock($file, LOCK_EX)) {
        give_up('The count of failed sign-ins cannot be kept in ' . ATTEMPTS . '.');
    }
    return $file;
}

// Client and name => array of 'count' and 'time'; what is older than an hour is forgotten.
function read_attempts($file)
{
    $attempts = array();
    rewind($file);
    while (($line = fgets($file, 256)) !== false) {
        $parts = explode(' ', trim($line));
        if (count($parts) == 3 && time() - $parts[2] < 3600) {
            $attempts[$parts[0]] = array('count' => (int) $parts[1], 'time' => (int) $parts[2]);
        }
    }
    return $attempts;
}

function write_attempts($file, $attempts)
{
    ftruncate($file, 0);
    foreach ($attempts as $key => $attempt) {
        fwrite($file, $key . ' ' . $attempt['count'] . ' ' . $attempt['time'] . "\n");
    }
    fclose($file);
}
