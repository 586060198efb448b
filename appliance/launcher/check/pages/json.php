<?php
/* JSON, also for an engine that does not bring it: then as much of it as the table of the check has. */

function encoded($value)
{
    return function_exists('json_encode') ? json_encode($value, JSON_UNESCAPED_SLASHES) : json_of($value);
}

function decoded($text)
{
    return function_exists('json_decode') ? json_decode($text) : value_of_json($text);
}

/* Lists are arrays, objects have the class stdClass. */
function json_of($value)
{
    if (is_null($value)) {
        return 'null';
    }
    if (is_bool($value)) {
        return $value ? 'true' : 'false';
    }
    if (is_int($value) || is_float($value)) {
        return (string) $value;
    }
    if (is_string($value)) {
        return '"' . strtr($value, array('\\' => '\\\\', '"' => '\\"', "\n" => '\\n', "\r" => '\\r', "\t" => '\\t')) . '"';
    }
    $members = array();
    foreach (is_object($value) ? get_object_vars($value) : $value as $name => $member) {
        $members[] = (is_object($value) ? json_of((string) $name) . ':' : '') . json_of($member);
    }
    return is_object($value) ? '{' . implode(',', $members) . '}' : '[' . implode(',', $members) . ']';
}

/* The value that the text stands for; false for a text that is none. */
function value_of_json($text)
{
    $tokens = preg_split('/("(?>(?>[^"\\\\]+|\\\\.)*)"|[][{},:])|\s+/s', $text, -1, PREG_SPLIT_DELIM_CAPTURE | PREG_SPLIT_NO_EMPTY);
    $place = 0;
    $value = value_at($tokens, $place);
    return $place == count($tokens) ? $value : false;
}

function value_at($tokens, &$place)
{
    $words = array('null' => null, 'true' => true, 'false' => false);
    $token = isset($tokens[$place]) ? $tokens[$place] : '';
    ++$place;
    if ($token == '[' || $token == '{') {
        return members_at($tokens, $place, $token == '{');
    }
    if ($token != '' && $token[0] == '"') {
        return strtr(substr($token, 1, -1), array('\\\\' => '\\', '\\"' => '"', '\\/' => '/', '\\n' => "\n", '\\r' => "\r", '\\t' => "\t"));
    }
    if (array_key_exists($token, $words)) {
        return $words[$token];
    }
    if (!is_numeric($token)) {
        $place = -1; /* never the end again */
        return false;
    }
    return $token + 0;
}

function members_at($tokens, &$place, $are_named)
{
    $object = new stdClass();
    $list = array();
    $end = $are_named ? '}' : ']';
    while ($place >= 0 && isset($tokens[$place]) && $tokens[$place] != $end) {
        if ($are_named) {
            $name = value_at($tokens, $place);
            ++$place; /* the colon */
            $object->$name = value_at($tokens, $place);
        } else {
            $list[] = value_at($tokens, $place);
        }
        if (isset($tokens[$place]) && $tokens[$place] == ',') {
            ++$place;
        }
    }
    if ($place >= 0) {
        ++$place; /* the end; where it is missing this is beyond all */
    }
    return $are_named ? $object : $list;
}
