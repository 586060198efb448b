<?php
require dirname(dirname(__FILE__)) . '/shared/page.php';
require dirname(dirname(__FILE__)) . '/shared/applying.php';

$session = signed_in();
$change = kept_change($session);
if (!$change) {
    go_to('index.php', 'No change is under way.');
}
$kind = $kinds_of_change[$change['kind']];
$seconds = seconds_since($change);
$now = values_now($session, $change['kind']);
$rows = compare_values($change, $now);
$lines = lines_about($change);
$outcome = outcome_of($change, $rows, $lines);
$is_final = $outcome == 'applied' || $outcome == 'failed';
if ($change['outcome'] == 'waiting' && $is_final) {
    keep_outcome($session, $change, $outcome, $lines);
}
$moved_to = moved_to($change);
$titles = array('waiting' => 'Applying', 'applied' => 'Applied', 'failed' => 'Not applied', 'late' => 'Not applied');
$stored_only = isset($now['enabled']) && !$now['enabled'];
$values = array('title' => $titles[$outcome], 'part_of' => $kind['page'], 'kind' => $kind, 'rows' => $rows,
    'stored_only' => $stored_only, 'outcome' => $outcome,
    'sentence' => outcome_sentence($change, $outcome, $rows, $stored_only), 'change' => $change,
    'moved_to' => $moved_to, 'other_origin' => $moved_to,
    'percent' => (int) min(95, 100 * $seconds / $kind['usual_seconds']), 'lines' => $lines,
    'polls' => !$is_final && $seconds < 10 * $kind['longest_seconds']);
if ($outcome == 'waiting') {
    // Without scripts nothing but going there shows whether the new address answers.
    $values['refresh'] = $moved_to == '' ? array('seconds' => 2, 'address' => 'applying.php?background=1')
        : array('seconds' => max(2, $kind['usual_seconds'] + 3 - $seconds), 'address' => $moved_to . '/applying.php');
}
show('applying', $values);
