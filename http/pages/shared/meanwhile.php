<?php
// Whether a form changes anything, and whether somebody else has changed the settings since it was opened. Each form carries
// the settings that it showed; they are told apart as texts.

// $values: name => setting, as the page shows it.
function seen_field($values)
{
    if ($GLOBALS['only_shown']) {
        return '';
    }
    $pairs = array();
    foreach ($values as $name => $value) {
        $pairs[] = urlencode($name) . '=' . urlencode((string) $value);
    }
    // A form that is filled again says what it showed when it was opened.
    return '<input type="hidden" name="seen" value="' . h(typed_again('seen', implode('&', $pairs))) . '">';
}

// The settings that the form showed: name => text; empty when it said nothing about that.
function seen_values()
{
    $seen = array();
    foreach (explode('&', text_of($_POST, 'seen')) as $pair) {
        $parts = explode('=', $pair);
        if (count($parts) == 2) {
            $seen[urldecode($parts[0])] = urldecode($parts[1]);
        }
    }
    return $seen;
}

// What is no longer as the form showed it: rows of 'label', 'then' and 'now'. $labels: name => label.
function changed_meanwhile($now, $labels)
{
    $seen = seen_values();
    return $seen ? rows_changed($labels, $seen, $now) : array();
}

function rows_changed($labels, $seen, $now)
{
    $rows = array();
    foreach ($labels as $name => $label) {
        $then = isset($seen[$name]) ? $seen[$name] : '';
        $value = isset($now[$name]) ? (string) $now[$name] : '';
        if ($then != $value) {
            $rows[] = array('label' => $label, 'then' => $then, 'now' => $value);
        }
    }
    return $rows;
}

function is_unchanged($wanted, $now)
{
    foreach ($wanted as $name => $value) {
        if (!isset($now[$name]) || !same_value((string) $value, (string) $now[$name])) {
            return false;
        }
    }
    return count($wanted) == count($now);
}

define('UNREADABLE', 'What is set now cannot be read, so that it could not be put back. Try again.');
define('UNCHANGED', 'These are the settings already; nothing was changed.');

// What somebody else has changed, as markup.
function meanwhile_message($rows)
{
    $html = '<p><strong>Somebody has changed these settings since you opened the form; yours were not applied.</strong> Compare, then'
        . ' send the form again if yours are still right.</p><ul>';
    foreach ($rows as $row) {
        $html .= '<li>' . h($row['label']) . ': ' . h($row['then'] == '' ? 'none' : $row['then']) . ' when you opened it, '
            . h($row['now'] == '' ? 'none' : $row['now']) . ' now</li>';
    }
    return message('caution', $html . '</ul>');
}
