<?php
// What the appliance writes down: the trace log, the audit trail, and what a user has set going.

define('TRACE_BYTES', 262144); // of the log's end that are looked at
define('TRACE_LINES', 300);
define('RECORD_SEPARATOR', "\x1e");
define('FIELD_SEPARATOR', "\x1f");

function trace_size()
{
    clearstatcache();
    return file_exists(TRACE_LOG) ? filesize(TRACE_LOG) : 0;
}

function open_trace_log()
{
    return is_file(TRACE_LOG) && is_readable(TRACE_LOG) ? fopen(TRACE_LOG, 'rb') : false;
}

// The last lines of the trace log in which the text occurs, oldest first; false when it cannot be read.
function trace_lines($text)
{
    $file = open_trace_log();
    if (!$file) {
        return false;
    }
    $start = max(0, trace_size() - TRACE_BYTES);
    fseek($file, $start);
    if ($start > 0) {
        fgets($file, TRACE_BYTES); // the rest of a line
    }
    $found = array();
    while (($line = fgets($file, TRACE_BYTES)) !== false) {
        if ($text == '' || strpos(strtolower($line), strtolower($text)) !== false) {
            $found[] = rtrim($line, "\n");
        }
    }
    fclose($file);
    return array_slice($found, -TRACE_LINES);
}

// The first lines behind the byte $from that match, oldest first; false when the trace log cannot be read.
function trace_lines_since($from, $pattern)
{
    $file = open_trace_log();
    if (!$file) {
        return false;
    }
    fseek($file, trace_size() < $from ? 0 : $from); // it is shorter when it was begun anew
    $found = array();
    while (count($found) < TRACE_LINES && ($line = fgets($file, TRACE_BYTES)) !== false) {
        if (preg_match($pattern, $line)) {
            $found[] = rtrim($line, "\n");
        }
    }
    fclose($file);
    return $found;
}

// The newest changes of the management services, newest first: each an array of time, user, operation, values
// and result; false when they cannot be read.
function audit_rows()
{
    $status = 0;
    $lines = array();
    exec(AUDIT_COMMAND, $lines, $status);
    if ($status != 0) {
        return false;
    }
    $rows = array();
    foreach (explode(RECORD_SEPARATOR, implode("\n", $lines)) as $record) {
        $fields = explode(FIELD_SEPARATOR, $record);
        if (count($fields) == 5) {
            $rows[] = $fields;
        }
    }
    return $rows;
}

// What came of an operation, as markup: stored, or refused with the reason.
function result_of($text)
{
    $parts = explode(': ', $text, 2);
    return state($parts[0] == 'stored' ? 'good' : 'bad', ucfirst($parts[0]))
        . (count($parts) == 2 ? '<p class="hint">' . h($parts[1]) . '</p>' : '');
}

// A change that goes on after the answer is kept for its user outside of the session: with the appliance's
// address the browser's session changes too.
function applying_file($session)
{
    return PRIVATE_FOLDER . '/applying.' . md5($session->user);
}

function keep_applying($session, $change)
{
    return replace_file(applying_file($session), serialize($change));
}

// Keeps what a change has come to, unless the user has set another one going meanwhile.
function keep_outcome($session, $change)
{
    $kept = kept_applying($session);
    if ($kept && $kept['began'] == $change['began'] && $kept['values'] == $change['values']) {
        keep_applying($session, $change);
    }
}

// As it was kept, or false.
function kept_applying($session)
{
    $path = applying_file($session);
    $change = is_readable($path) ? unserialize(implode('', file($path))) : false;
    return isset($change['kind'], $change['outcome'], $change['lines']) ? $change : false;
}
