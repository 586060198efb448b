<?php
// Reading the trace log, in which the module writes down what it does.

define('TRACE_LOG', APPLIANCE_FOLDER . '/HTTPService/lighttpd/logs/php_extension.log');
define('TRACE_BYTES', 262144); // of the log's end that are looked at
define('TRACE_LINES', 300); // that are shown at most

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
