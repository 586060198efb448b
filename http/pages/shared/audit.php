<?php
// What the pages themselves write down about who did what: one line each, its fields separated by tabs.

define('AUDIT_FILE', PRIVATE_FOLDER . '/audit');
define('AUDIT_LINES', 500); // that are kept

// Adds a line: when, who, from which address, what, and with which values. A line that cannot be written is said in the web
// server's log, and holds up nothing.
function write_audit($user, $client, $operation, $details)
{
    make_private_folders();
    $file = open_locked(AUDIT_FILE);
    if (!$file) {
        error_log('The audit cannot be written to ' . AUDIT_FILE . '.');
        return;
    }
    $lines = audit_lines_of($file);
    $fields = array(time(), $user, plain_address($client), $operation, $details);
    foreach ($fields as $i => $field) {
        $fields[$i] = preg_replace('/[\x00-\x1f\x7f]+/', ' ', (string) $field);
    }
    $lines[] = implode("\t", $fields) . "\n";
    // Opened for adding: when enough is there, what is too old goes.
    if (count($lines) > AUDIT_LINES) {
        ftruncate($file, 0);
        fwrite($file, implode('', array_slice($lines, -AUDIT_LINES)));
    } else {
        fwrite($file, $lines[count($lines) - 1]);
    }
    fclose($file);
}

function audit_lines_of($file)
{
    $lines = array();
    rewind($file);
    while (($line = fgets($file, 4096)) !== false) {
        $lines[] = $line;
    }
    return $lines;
}

// The newest lines, newest first: each an array of 'time', 'user', 'client', 'operation' and 'details'.
function page_audit($count)
{
    $entries = array();
    $file = is_readable(AUDIT_FILE) ? fopen(AUDIT_FILE, 'rb') : false;
    if (!$file) {
        return $entries;
    }
    $lines = audit_lines_of($file);
    fclose($file);
    for ($i = count($lines) - 1; $i >= 0 && count($entries) < $count; $i--) {
        $fields = explode("\t", rtrim($lines[$i], "\n"));
        if (count($fields) == 5) {
            $entries[] = array('time' => (int) $fields[0], 'user' => $fields[1], 'client' => $fields[2],
                'operation' => $fields[3], 'details' => $fields[4]);
        }
    }
    return $entries;
}
