<?php
// What the browser asks for and sends.

// The text that was sent under this name: never an array, and without the backslashes that 4.3 may put into it.
function text_of($values, $name, $default = '')
{
    if (!isset($values[$name]) || !is_string($values[$name])) {
        return $default;
    }
    if (function_exists('get_magic_quotes_gpc') && get_magic_quotes_gpc()) {
        return stripslashes($values[$name]);
    }
    return $values[$name];
}

// What was typed into a field, without the blanks around it.
function posted($name)
{
    return trim(text_of($_POST, $name));
}

function is_post()
{
    return $_SERVER['REQUEST_METHOD'] == 'POST';
}

// Whether the page fetches itself, as it does again and again: that is no sign of somebody being there.
function is_background()
{
    return text_of($_GET, 'background') == '1';
}

function is_https()
{
    return isset($_SERVER['HTTPS']) && strtolower($_SERVER['HTTPS']) == 'on';
}

// Host and port as the browser knows the appliance, or '' when it sent something else.
function host_of_request()
{
    $host = text_of($_SERVER, 'HTTP_HOST');
    return preg_match('/^([a-z0-9._-]+|\[[0-9a-f:.]+\])(:[0-9]{1,5})?$/i', $host) ? $host : '';
}
