<?php
// Reading the trace log, in which the module writes down what it does.

define('TRACE_LOG', APPLIANCE_FOLDER . '/HTTPService/lighttpd/logs/php_extension.log');
define('TRACE_BYTES', 262144); // of the log's end that are looked at
define('TRACE_LINE_BYTES', 65536); // that are read of it at once
define('TRACE_LINES', 300); // that are shown at most
define('TRACE_CALLS', 100); // that are shown at most
define('TRACE_DOWNLOAD_BYTES', 4194304); // of the log's end, as a file

// What the module says when a step has failed.
define('TRACED_FAILURE', '/\]:(could not|failed|invalid)/i');
// The answer of a script that has to say something: of these no other line says that there was none.
define('TRACED_SILENCE', '/\]:Output: :<>\s*$/');
define('TRACED_SILENCE_OF_NAME', '/\]:Output = :<>\s*$/'); // others may have an empty answer of this kind
// The values that not everybody may see.
define('TRACED_SECRET', '/(\]:(?:setting community name|SNMP community):+)<.*/');

function trace_size()
{
    clearstatcache();
    return file_exists(TRACE_LOG) ? filesize(TRACE_LOG) : 0;
}

function open_trace_log()
{
    return is_file(TRACE_LOG) && is_readable(TRACE_LOG) ? @fopen(TRACE_LOG, 'rb') : false; // it may just have gone
}

// The lines at the end of the trace log, oldest first; false when it cannot be read. $session: who is to see them.
function end_of_trace($session)
{
    $trace = open_end_of_trace(TRACE_BYTES);
    $lines = $trace ? array() : false;
    while ($trace && ($line = next_of_trace($trace, $session)) !== false) {
        $lines[] = rtrim($line, "\n");
    }
    return $lines;
}

// The end of the log as it is now, at the beginning of a line: array of 'file' and 'end'; false when it cannot be read. What is
// written meanwhile is left out, and a log that is begun anew meanwhile is another file, or ends earlier.
function open_end_of_trace($bytes)
{
    $file = open_trace_log();
    if (!$file) {
        return false;
    }
    fseek($file, 0, SEEK_END);
    $end = ftell($file);
    fseek($file, max(0, $end - $bytes));
    $rest = $end > $bytes ? '' : "\n";
    while ($rest !== false && substr($rest, -1) != "\n") {
        $rest = fgets($file, TRACE_LINE_BYTES); // of the line in whose middle this is
    }
    return array('file' => $file, 'end' => $end);
}

// The next line with its end, or a part of one that is longer than TRACE_LINE_BYTES; false behind the last one. Who may not see all
// gets the first part of such a line alone.
function next_of_trace($trace, $session)
{
    $line = next_bytes_of_trace($trace);
    if ($line === false) {
        fclose($trace['file']);
    }
    if ($line === false || may_change($session)) {
        return $line;
    }
    for ($rest = $line; $rest !== false && substr($rest, -1) != "\n";) {
        $rest = next_bytes_of_trace($trace);
    }
    return preg_replace(TRACED_SECRET, '$1<not shown>', rtrim($line, "\n")) . "\n";
}

function next_bytes_of_trace($trace)
{
    return ftell($trace['file']) < $trace['end'] ? fgets($trace['file'], TRACE_LINE_BYTES) : false;
}

// Line by line: an old interpreter has little memory. $trace: of open_end_of_trace().
function print_trace($trace, $session)
{
    while (($line = next_of_trace($trace, $session)) !== false) {
        echo $line;
    }
}

// The last of the lines in which the text occurs.
function lines_with($text, $lines)
{
    $found = array();
    foreach ($lines as $line) {
        if (strpos(strtolower($line), strtolower($text)) !== false) {
            $found[] = $line;
        }
    }
    return array_slice($found, -TRACE_LINES);
}

// The calls of the module's functions, oldest first: each an array of 'name', 'time', 'lines', 'failed', 'left' (whether it has
// come to its end) and 'key', by which it is known again. Lines do not say whose they are: where calls of several requests mix, one
// belongs to the call that began last.
function calls_of($lines)
{
    $calls = array();
    $open = array(); // name => where in $calls, of those that have not come to their end
    $current = -1;
    $same = array(); // first line => how often
    foreach ($lines as $line) {
        $is_edge = preg_match('/^\w+\[([^\]]*)\]:(entering|exiting|leaving) ([a-z0-9_]+):/i', $line, $edge);
        $begins = $is_edge && strtolower($edge[2]) == 'entering';
        if ($begins || $current < 0) {
            $name = $begins ? $edge[3] : 'The rest of an earlier call';
            $same[$line] = isset($same[$line]) ? $same[$line] + 1 : 1;
            $calls[] = array('key' => md5($line . $same[$line]), 'name' => $name, 'time' => $begins ? $edge[1] : '',
                'lines' => array(), 'failed' => false, 'left' => !$begins);
            $current = count($calls) - 1;
            $open[$name] = $current;
        } elseif ($is_edge && isset($open[$edge[3]])) {
            $current = $open[$edge[3]];
            $calls[$current]['left'] = true;
            unset($open[$edge[3]]);
        }
        $calls[$current]['lines'][] = $line;
        $calls[$current]['failed'] = $calls[$current]['failed'] || is_traced_failure($calls[$current]['name'], $line);
        if ($is_edge && !$begins) {
            $current = $open ? end($open) : $current;
        }
    }
    return $calls;
}

function is_traced_failure($function, $line)
{
    return preg_match(TRACED_FAILURE, $line) || preg_match(TRACED_SILENCE, $line)
        || $function == 'get_network_hostname' && preg_match(TRACED_SILENCE_OF_NAME, $line);
}

function failed_calls($calls)
{
    $failed = array();
    foreach ($calls as $call) {
        if ($call['failed']) {
            $failed[] = $call;
        }
    }
    return $failed;
}

function lines_of_calls($calls)
{
    $lines = array();
    foreach ($calls as $call) {
        $lines = array_merge($lines, $call['lines']);
    }
    return $lines;
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
