<?php
// A command by Runtime, from a small process and from one with 1 GiB in use, beside pipe, posix_spawn, read, wait.
require dirname(__DIR__) . '/helpers.php';

foreach (array('a small process' => array(), 'one with 1 GiB' => array('large')) as $process => $mode) {
    $samples = google_samples('^Command', 'real_time', $mode, 41);
    ratio_row_of_all_pairs("a command by Runtime, $process", 'pipe, posix_spawn, read, wait', 'ns', at_most($mode ? 1.1 : 1.05),
        $samples['CommandByRuntime'], $samples['CommandBare']);
}
