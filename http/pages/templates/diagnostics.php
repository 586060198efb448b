<?php
if (!$log_alone) {
    echo render('audit', array('entries' => $entries, 'count' => $count, 'page' => $page, 'pages' => $pages, 'wanted' => $wanted,
        'users' => $users, 'gaps' => $gaps));
}
if ($questions) {
    echo render('network_questions', array('questions' => $questions, 'asked' => $asked, 'value' => $value, 'answer' => $answer,
        'question_errors' => $question_errors));
}
echo render('trace', array('filter' => $filter, 'live' => $live, 'only_errors' => $only_errors, 'lines' => $lines,
    'calls' => $calls));
