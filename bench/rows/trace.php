<?php
// One line of the trace, beside open, write and close of the same bytes, by processor time.
require dirname(__DIR__) . '/helpers.php';

$samples = google_samples('^(TraceLine|BareLine|TraceText)$', 'cpu_time');
ratio_row_of_all_pairs('one trace line', 'bare open, write, close', 'ns', at_most(1.15), $samples['TraceLine'], $samples['BareLine']);
ratio_row_of_all_pairs('... its text alone, in memory', 'bare open, write, close', 'ns', null, $samples['TraceText'], $samples['BareLine']);
