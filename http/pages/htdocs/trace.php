<?php
// The end of the trace log as a file.
require dirname(dirname(__FILE__)) . '/shared/page.php';

$session = signed_in();
$lines = end_of_trace($session, TRACE_DOWNLOAD_BYTES);
if ($lines === false) {
    refuse('404 Not Found', 'There is no trace log', 'It cannot be read; there may be none yet.');
}
send_file('trace.log', 'text/plain', $lines ? implode("\n", $lines) . "\n" : '');
