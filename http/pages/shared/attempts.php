<?php
// The count of failed sign-ins, by which whoever guesses passwords has to wait longer and longer.

define('ATTEMPTS_FILE', PRIVATE_FOLDER . '/attempts');
define('LONGEST_WAIT', 60); // seconds
define('ATTEMPTS_KEPT', 3600); // seconds

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
        $pause = min(LONGEST_WAIT, $count > 2 ? 1 << min(10, $count - 2) : 1);
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
    $file = open_locked(ATTEMPTS_FILE);
    if (!$file) {
        give_up('The count of failed sign-ins cannot be kept in ' . ATTEMPTS_FILE . '.');
    }
    return $file;
}

// Key => array of 'count' and 'time' of the last one; what is long ago is forgotten.
function read_attempts($file)
{
    $attempts = array();
    rewind($file);
    while (($line = fgets($file, 256)) !== false) {
        $parts = explode(' ', trim($line));
        if (count($parts) != 3) {
            continue;
        }
        list($key, $count, $time) = $parts;
        if (time() - $time < ATTEMPTS_KEPT) {
            $attempts[$key] = array('count' => (int) $count, 'time' => (int) $time);
        }
    }
    return $attempts;
}

// Also closes the file, so that the next attempt can be counted.
function write_attempts($file, $attempts)
{
    ftruncate($file, 0);
    foreach ($attempts as $key => $attempt) {
        fwrite($file, $key . ' ' . $attempt['count'] . ' ' . $attempt['time'] . "\n");
    }
    fclose($file);
}
