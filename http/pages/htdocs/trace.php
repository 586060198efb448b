<?php
// The end of the trace log as a file.
require dirname(dirname(__FILE__)) . '/shared/page.php';

$session = signed_in();
leave_session(); // the other requests need not wait for a slow reader
$trace = open_end_of_trace(TRACE_DOWNLOAD_BYTES);
if (!$trace) {
    refuse('404 Not Found', 'There is no trace log', 'It cannot be read; there may be none yet.');
}
begin_file('trace.log', 'text/plain');
print_trace($trace, $session);
