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
$stored_only = $trial['kind'] == 'ipv6' && $now['enabled'] == 'Off' && !isset($trial['values']['enabled']);
$values = array('title' => title_of_outcome($trial, $outcome), 'part_of' => $kind['page'], 'kind' => $kind, 'rows' => $rows,
    'stored_only' => $stored_only, 'outcome' => $outcome, 'trial' => $trial, 'ways' => $ways, 'questions' => questions_of($session, $trial, $ways['origins']),
    'sentence' => outcome_sentence($trial, $outcome, $rows, $stored_only), 'other_origins' => $ways['origins'],
    'left' => seconds_left($trial),
    'needs_wish' => $trial['state'] == 'trial' && !$ways['leaves'] && !arrives_by_change($session, $trial),
    'polls' => $outcome == 'applying' || $outcome == 'late' && seconds_since($trial) < 10 * $kind['longest_seconds']
        || !is_settled($trial));
$values['unless'] = unless_what($session, $trial, $values['needs_wish']);
$values['network'] = network_to_be_in($trial);
$values['no_name_servers'] = $outcome == 'kept' && may_change($session) && lost_name_servers($session, $trial);
if ($values['polls'] && $trial['kind'] == 'ipv6') {
    $values['other_origins'][] = origin_of('::', ''); // addresses of IPv6 come while the page is open
}
if ($values['polls']) {
    $values['refresh'] = refresh_of($trial, $ways, $kind);
}
if (is_settled($trial) && !is_background()) {
    news_of_trial($session); // said here
}
show('applying', $values);

// Without scripts the browser cannot ask who answers under the new address. So it takes no key there: whoever signs in keeps the
// change. It goes there by itself only when the appliance has seen that nobody else has that address; else the page stays, with
// the link, until this address must be answering again.
function refresh_of($trial, $ways, $kind)
{
    if (!$ways['leaves'] || !$ways['origins']) {
        return array('seconds' => 2, 'address' => 'applying.php?background=1');
    }
    if ($trial['state'] == 'undoing') {
        return array('seconds' => $kind['usual_seconds'] + 5, 'address' => $ways['origins'][0] . '/applying.php');
    }
    if ($trial['goes_alone']) {
        return array('seconds' => max(2, $kind['usual_seconds'] + 3 - seconds_since($trial)),
            'address' => $ways['origins'][0] . '/applying.php');
    }
    return array('seconds' => ($trial['seconds'] > 0 ? seconds_left($trial) : 0) + $kind['longest_seconds'],
        'address' => 'applying.php');
}

function answer_to_wish($session, $wish, $id)
{
    $trial = read_trial();
    if ($trial && $trial['id'] == $id && $wish == 'keep') {
        $by_this = keep_trial($trial, 'asked', $session->user, client_of_request());
        go_to('applying.php', $by_this ? '' : 'It was too late for keeping the change.');
    }
    if ($trial && $trial['id'] == $id && $wish == 'undo') {
        // Who has not seen that it is kept has not asked for undoing what is kept.
        undo_trial($trial, 'asked', $session->user, client_of_request(), posted('seen') == 'kept');
        $trial = advance_trial();
        go_to('applying.php', $trial['state'] == 'undoing' || $trial['state'] == 'undone' ? ''
            : ($trial['state'] == 'kept' ? 'The change was kept before it could be undone. It can be undone once more below.'
            : 'It was too late for undoing the change.'));
    }
    go_to('applying.php', 'This change is no longer the last one; nothing was done.');
}
