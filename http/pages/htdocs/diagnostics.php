<?php
require dirname(dirname(__FILE__)) . '/shared/page.php';
require dirname(dirname(__FILE__)) . '/shared/audit_list.php';
require dirname(dirname(__FILE__)) . '/shared/network_questions.php';

$session = signed_in();
$log_alone = is_background() && text_of($_GET, 'parts') == 'log';
if (!$log_alone) {
    ask_device(false);
}
$questions = may_change($session) && !$log_alone ? possible_questions() : array();
$answer = false;
$errors = array();
$question = posted('change');
$value = posted('value');
if (is_post() && isset($questions[$question])) {
    $error = question_error($question, $value);
    if ($error == '') {
        end_asking(); // a question may take longer than a page waits
        $answer = ask_question($question, $value);
        ask_device(false);
    } else {
        $errors[$question] = $error;
    }
}

$services = $log_alone ? array() : audit_entries();
list($entries, $gaps) = $log_alone ? array(array(), array()) : whole_audit($services);
$wanted = array('user' => text_of($_GET, 'user'), 'subject' => text_of($_GET, 'subject'), 'outcome' => text_of($_GET, 'outcome'));
$found = filtered_audit($entries, $wanted);
$number = text_of($_GET, 'page', '1');
// No such page has nothing on it.
$page = preg_match('/^[1-9][0-9]{0,5}$/D', $number) ? (int) $number : 0;
$values = array('title' => 'Diagnostics', 'lead' => 'What the appliance did, who asked for it, and what it sees of the network.',
    'users' => users_of($entries), 'gaps' => $gaps, 'wanted' => $wanted,
    'count' => count($found), 'page' => $page, 'pages' => max(1, (int) ceil(count($found) / AUDIT_PAGE_ENTRIES)),
    'entries' => $page == 0 ? array() : array_slice($found, ($page - 1) * AUDIT_PAGE_ENTRIES, AUDIT_PAGE_ENTRIES),
    'questions' => $questions, 'asked' => $question, 'value' => $value, 'answer' => $answer,
    'question_errors' => $errors, 'log_alone' => $log_alone);

$filter = text_of($_GET, 'filter');
$live = text_of($_GET, 'live', 'scripts');
$only_errors = text_of($_GET, 'errors') == '1';
$lines = end_of_trace($session);
$calls = $lines === false || ($filter != '' && !$only_errors) ? array() : calls_of($lines);
$calls = $only_errors ? failed_calls($calls) : $calls;
if ($lines !== false && $filter != '') {
    $lines = lines_with($filter, $only_errors ? lines_of_calls($calls) : $lines);
}
$values['filter'] = $filter;
$values['live'] = $live;
$values['only_errors'] = $only_errors;
$values['lines'] = $lines;
$values['calls'] = array_reverse(array_slice($calls, -TRACE_CALLS));
if ($live == '1') {
    $values['refresh'] = array('seconds' => 3, 'address' => 'diagnostics.php?live=1&background=1&filter=' . urlencode($filter)
        . '&errors=' . ($only_errors ? '1' : '') . '#trace');
}
show('diagnostics', $values);
