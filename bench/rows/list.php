<?php
// The paged list of 4 to 10 000 elements beside std::deque: appending, reading in order and in any order.
require dirname(__DIR__) . '/helpers.php';

$samples = google_samples('^(List|Deque)', 'cpu_time');
foreach (array('Append' => 'append', 'InOrder' => 'read in order', 'Shuffled' => 'read in any order') as $benchmark => $what) {
    foreach (array(4, 20, 100, 1000, 10000) as $size) {
        ratio_row("list of $size: $what", 'std::deque', 'ns', at_most(2), $samples["List$benchmark/$size"],
            $samples["Deque$benchmark/$size"]);
    }
}
value_row('list of 4: blocks from the heap', '', at_most(0), array(program('parts', 'allocations', 4)()));
