<?php
require dirname(dirname(__FILE__)) . '/shared/page.php';

// The change that is on trial, or the last one: how far it is, and what became of it. Everybody who is signed in sees it; who
// may change settings can keep and undo it.
$session = signed_in();
if (is_post()) {
    answer_to_wish($session, posted('change'), posted('id'));
}
$trial = read_trial();
if (!$trial) {
    go_to('index.php', 'No change is under way.');
}
$kind = $kinds_of_change[$trial['kind']];
$now = values_now($session, $trial['kind']);
$rows = compare_values($trial, $now);
if ($trial['why'] == 'no trial' && all_as_wanted($rows) && !$trial['as_wanted']) {
    change_trial($trial['id'], array('kept'), array('as_wanted' => true));
}
$outcome = outcome_of($trial, $rows);
$ways = is_followed($trial) ? ways_of($session, $trial) : array('origins' => array(), 'leaves' => false);
$stored_only = isset($now['enabled']) && isset($now['ip']) && !$now['enabled'];
$values = array('title' => title_of_outcome($trial, $outcome), 'part_of' => $kind['page'], 'kind' => $kind, 'rows' => $rows,
    'stored_only' => $stored_only, 'outcome' => $outcome, 'trial' => $trial, 'ways' => $ways, 'key' => key_of_session($trial),
    'sentence' => outcome_sentence($trial, $outcome, $rows, $stored_only), 'other_origins' => $ways['origins'],
    'left' => seconds_left($trial),
    'needs_wish' => $trial['state'] == 'trial' && !$ways['leaves'] && !arrives_by_change($session, $trial),
    'polls' => $outcome == 'applying' || $outcome == 'late' && seconds_since($trial) < 10 * $kind['longest_seconds']
        || !is_settled($trial));
if ($values['polls'] && family_of_kind($trial['kind']) == 'ipv6') {
    $values['other_origins'][] = origin_of('::', ''); // addresses of IPv6 come while the page is open
}
if ($values['polls']) {
    $values['refresh'] = refresh_of($trial, $ways, $values['key'], $kind);
}
if (is_settled($trial) && !is_background()) {
    news_of_trial($session); // said here
}
show('applying', $values);

// Without scripts nothing but going there shows whether the new address answers; who finds nobody there comes back to this
// address when the trial is over.
function refresh_of($trial, $ways, $key, $kind)
{
    $here = array('seconds' => 2, 'address' => 'applying.php?background=1');
    if (!$ways['leaves'] || !$ways['origins'] || $key == '' && $trial['seconds'] > 0) {
        return $here;
    }
    return array('seconds' => max(2, $kind['usual_seconds'] + 3 - seconds_since($trial)),
        'address' => $ways['origins'][0] . ($key == '' ? '/applying.php' : '/trial.php?key=' . $key));
}

function answer_to_wish($session, $wish, $id)
{
    $trial = read_trial();
    if ($trial && $trial['id'] == $id && $wish == 'keep') {
        $by_this = keep_trial($trial, 'asked', $session->user, client_of_request());
        go_to('applying.php', $by_this ? '' : 'It was too late for keeping the change.');
    }
    if ($trial && $trial['id'] == $id && $wish == 'undo') {
        undo_trial($trial, 'asked', $session->user, client_of_request());
        $trial = advance_trial();
        go_to('applying.php', $trial['state'] == 'undoing' || $trial['state'] == 'undone' ? ''
            : 'It was too late for undoing the change.');
    }
    go_to('applying.php', 'This change is no longer the last one; nothing was done.');
}
