<?php
// The count of failed sign-ins, by which whoever guesses passwords has to wait longer and longer.

define('ATTEMPTS_FILE', PRIVATE_FOLDER . '/attempts');
define('LONGEST_WAIT', 60); // seconds, after wrong passwords of one's own
define('LONGEST_WAIT_FOR_OTHERS', 5); // seconds, after those of anybody with the same address
define('ATTEMPTS_KEPT', 3600); // seconds
define('ATTEMPTS_AT_MOST', 2000); // counts
define('GROUPS_OF_NAMES', 64);

// The seconds that must pass before the next attempt of this count; 0 when it may be made now. It counts as a failed one at
// once, so that many at a time gain nothing; attempt_succeeded() takes that back.
function seconds_until_attempt($key)
{
    $file = open_attempts();
    $attempts = read_attempts($file);
    $count = isset($attempts[$key]) ? $attempts[$key]['count'] : 0;
    $wait = 0;
    if ($count > 0) {
        $since = time() - $attempts[$key]['time'];
        $pause = min(longest_wait($key), $count > 2 ? 1 << min(10, $count - 2) : 1);
        // A clock that was set back does not lock anybody out.
        $wait = $since < 0 ? 0 : max(0, $pause - $since);
    }
    if ($wait == 0) {
        $attempts[$key] = array('count' => $count + 1, 'time' => time());
    }
    write_attempts($file, $attempts);
    return $wait;
}

// What others at the same address have tried stays counted; of one's own wrong ones nothing is left.
function attempt_succeeded($key)
{
    $file = open_attempts();
    $attempts = read_attempts($file);
    if (!isset($attempts[$key]) || is_own_count($key) || $attempts[$key]['count'] < 2) {
        unset($attempts[$key]);
    } else {
        $attempts[$key] = array('count' => $attempts[$key]['count'] - 1, 'time' => time() - LONGEST_WAIT_FOR_OTHERS);
    }
    write_attempts($file, $attempts);
}

// Which count a sign-in belongs to. A browser in which the account has signed in before has one of its own: no wrong password
// of anybody else keeps it waiting. All others with the same address share one for each group of names. Names that exist and
// names that do not are treated alike, and there are not more counts than groups.
function attempt_key($client, $name)
{
    $browser = known_browser($name);
    return $browser != '' ? 'browser/' . $browser
        : network_of(plain_address($client)) . '/' . hexdec(substr(sha1($name), 0, 4)) % GROUPS_OF_NAMES;
}

// Somebody who is signed in and is asked for the password again.
function session_attempt_key()
{
    return 'session/' . sha1(session_id());
}

function is_own_count($key)
{
    return strpos($key, 'browser/') === 0 || strpos($key, 'session/') === 0;
}

function longest_wait($key)
{
    return is_own_count($key) ? LONGEST_WAIT : LONGEST_WAIT_FOR_OTHERS;
}

function wait_sentence($seconds)
{
    return 'Too many attempts. Please wait ' . $seconds . ($seconds == 1 ? ' second' : ' seconds') . ', then try again.';
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

// Also closes the file, so that the next attempt can be counted. What is there is written over: a full disk has room for that.
function write_attempts($file, $attempts)
{
    while (count($attempts) > ATTEMPTS_AT_MOST) {
        unset($attempts[least_attempt($attempts)]);
    }
    $text = '';
    foreach ($attempts as $key => $attempt) {
        $text .= $key . ' ' . $attempt['count'] . ' ' . $attempt['time'] . "\n";
    }
    $over = @fopen(ATTEMPTS_FILE, 'r+b');
    $written = $over && @fwrite($over, $text) === strlen($text) && @fflush($over) && ftruncate($over, strlen($text));
    if ($over) {
        fclose($over);
    }
    fclose($file);
    if (!$written) {
        give_up('The count of failed sign-ins cannot be kept in ' . ATTEMPTS_FILE . ': its disk is full or cannot be written.');
    }
}

// The key of the lowest count, and of those the oldest: a flood of names does not wash away what was tried often.
function least_attempt($attempts)
{
    $least = '';
    foreach ($attempts as $key => $attempt) {
        if ($least === '' || $attempt['count'] < $attempts[$least]['count']
            || $attempt['count'] == $attempts[$least]['count'] && $attempt['time'] < $attempts[$least]['time']) {
            $least = $key;
        }
    }
    return $least;
}
