<?php
// The browsers in which an account has signed in: each has a cookie with a long random number, of which the hash is kept here.
// Lines of hash, name and time, separated by blanks.

define('BROWSERS_FILE', PRIVATE_FOLDER . '/browsers');
define('BROWSERS_KEPT', 20); // of each account, the last ones
define('BROWSER_SECONDS', 31536000); // for which a browser keeps the cookie

// The hash of this browser's number when the account has signed in here before, else ''.
function known_browser($name)
{
    $hash = hash_of_browser();
    foreach ($hash == '' ? array() : read_browsers() as $browser) {
        if ($browser['name'] === (string) $name && same_text($browser['hash'], $hash)) {
            return $hash;
        }
    }
    return '';
}

function hash_of_browser()
{
    $number = text_of($_COOKIE, cookie_name('settings-browser'));
    return preg_match('/^[0-9a-f]{64}$/D', $number) ? sha1('browser ' . $number) : '';
}

// The account has signed in here. Where this cannot be written down, the browser stays a stranger.
function remember_browser($name)
{
    $number = text_of($_COOKIE, cookie_name('settings-browser'));
    $is_known = false;
    foreach (read_browsers() as $browser) {
        $is_known = $is_known || same_text($browser['hash'], hash_of_browser());
    }
    if (!$is_known) {
        $number = random_hex(32); // never one that was chosen elsewhere
    }
    $browsers = array(array('hash' => sha1('browser ' . $number), 'name' => $name, 'time' => time()));
    if (change_browsers($name, $browsers)) {
        send_cookie('settings-browser', $number, BROWSER_SECONDS);
    }
}

// Whoever signs in to the account is a stranger again: the password that was known there is no longer good.
function forget_browsers_of($name)
{
    return change_browsers($name, false);
}

// Puts $newest before the account's others, of which the last ones stay; false: none of them stays.
function change_browsers($name, $newest)
{
    make_private_folders();
    $lock = open_locked(BROWSERS_FILE . '.lock');
    if (!$lock) {
        return false;
    }
    $text = '';
    $count = 0;
    foreach (array_merge($newest ? $newest : array(), read_browsers()) as $i => $browser) {
        $is_own = $browser['name'] === (string) $name;
        $again = $newest && $i > 0 && $is_own && $browser['hash'] == $newest[0]['hash'];
        $count += $is_own && !$again ? 1 : 0;
        if (!$is_own || $newest && !$again && $count <= BROWSERS_KEPT) {
            $text .= $browser['hash'] . ' ' . urlencode($browser['name']) . ' ' . $browser['time'] . "\n";
        }
    }
    $written = replace_file(BROWSERS_FILE, $text);
    fclose($lock);
    return $written;
}

// What is no right line is left out.
function read_browsers()
{
    $browsers = array();
    clearstatcache();
    foreach (is_readable(BROWSERS_FILE) ? file(BROWSERS_FILE) : array() as $line) {
        if (preg_match('/^([0-9a-f]{40}) (\S+) ([0-9]+)$/', rtrim($line), $found)) {
            $browsers[] = array('hash' => $found[1], 'name' => urldecode($found[2]), 'time' => (int) $found[3]);
        }
    }
    return $browsers;
}
