<?php
// The paged list of 4 to 10 000 elements beside std::deque: appending, reading in order, in any order.
require dirname(__DIR__) . '/helpers.php';

$samples = google_samples('^(List|Deque)', 'cpu_time');
foreach (array('Append' => 'append', 'InOrder' => 'read in order', 'Shuffled' => 'read in any order') as $benchmark => $what) {
    foreach (array(4, 20, 100, 1000, 10000) as $size) {
        ratio_row_of_all_pairs("list of $size: $what", 'std::deque', 'ns', at_most(2), $samples["List$benchmark/$size"],
            $samples["Deque$benchmark/$size"]);
    }
}
// Where the time goes: each page of four elements is a block of the heap; an element is reached page by page.
ratio_row_of_all_pairs('... the blocks of 10000 alone', 'the list', 'ns', null, $samples['ListBlocks/10000'], $samples['ListAppend/10000']);
$pages = 10000 / 4 / 2;
$steps = array_map(function ($time) use ($pages) { return $time / 10000 / $pages; }, $samples['ListShuffled/10000']);
value_row('... a page passed on the way to one of 10000', 'ns', null, $steps);
if (program('parts', 'allocations', 5)() != 1) {
    fail('the block that a fifth element takes is not counted');
}
value_row('list of 4: blocks from the heap', '', at_most(0), array(program('parts', 'allocations', 4)()));
