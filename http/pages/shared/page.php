<?php
// What every page begins with. The pages keep to what the appliance's interpreter (4.3) and today's both
// understand.

define('LIBRARY', '/home/embedded/library');
// Accounts, sessions and changes under way: readable by the web service alone.
define('PRIVATE_FOLDER', LIBRARY . '/HTTPService/dat');
define('TRACE_LOG', LIBRARY . '/HTTPService/lighttpd/logs/php_extension.log');
define('AUDIT_COMMAND', '/bin/sh ' . LIBRARY . '/AppManager/bin/auditTrail.sh');
define('ESCAPING', defined('ENT_SUBSTITUTE') ? ENT_QUOTES | ENT_SUBSTITUTE : ENT_QUOTES);

$library = dirname(__FILE__);
require $library . '/failures.php';
require $library . '/addresses.php';
require $library . '/accounts.php';
require $library . '/session.php';
require $library . '/records.php';
require $library . '/html.php';

error_reporting(E_ALL);
ini_set('display_errors', '0');
ini_set('log_errors', '1');
ini_set('html_errors', '0'); // so that a failure's message is what the module said
set_error_handler('note_failure');

// What is in the navigation, in its order: page => title.
$pages = array(
    'index.php' => 'Overview',
    'ipv4.php' => 'IPv4 and host name',
    'ipv6.php' => 'IPv6',
    'dns.php' => 'DNS',
    'port.php' => 'Ethernet port',
    'security.php' => 'Web security',
    'snmp.php' => 'SNMP agent',
    'traps.php' => 'Trap receivers',
    'diagnostics.php' => 'Diagnostics'
);

// Makes the private folders where they are missing.
function make_private_folders()
{
    foreach (array(PRIVATE_FOLDER, SESSIONS) as $folder) {
        if (!is_dir($folder)) {
            mkdir($folder, 0700);
        }
    }
}

// The text that was sent under this name; never an array, and without what some engines add to it.
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

// A page that fetches itself again and again is no sign of somebody being there.
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

// The headers of every answer. $other_origin is one more that the page may ask for a sign of life.
function send_headers($other_origin = '')
{
    // The policy knows no addresses in brackets.
    if (strpos($other_origin, '[') !== false) {
        $other_origin = substr($other_origin, 0, strpos($other_origin, '/'));
    }
    header('Content-Type: text/html; charset=utf-8');
    header("Content-Security-Policy: default-src 'none'; script-src 'self'; style-src 'self'; img-src 'self';"
        . " connect-src 'self' $other_origin; form-action 'self'; base-uri 'none'; frame-ancestors 'none'");
    header('X-Content-Type-Options: nosniff');
    header('X-Frame-Options: DENY');
    header('Referrer-Policy: no-referrer');
    header('Cache-Control: no-store');
}

// Shows templates/$template.php, which finds $values as variables, within the frame. Of $values the frame
// itself uses 'title', 'refresh' (array of seconds and address, for browsers without scripts) and 'other_origin'.
function show($template, $values)
{
    send_headers(isset($values['other_origin']) ? $values['other_origin'] : '');
    $content = render($template, $values);
    $values['content'] = $content; // rendered first: what it reports is shown above it
    echo render(isset($GLOBALS['session']) ? 'frame' : 'bare', $values);
    exit;
}

function render($template, $values)
{
    extract($values);
    ob_start();
    include dirname(dirname(__FILE__)) . '/templates/' . $template . '.php';
    return ob_get_clean();
}

// Goes to a page after a change, which says the message once.
function go_to($page, $message = '')
{
    if ($message != '') {
        return_to_session();
        $_SESSION['message'] = $message;
    }
    send_headers();
    header('Location: ' . $page, true, 303);
    exit;
}

// Ends a request that is not allowed.
function refuse($status, $title, $text)
{
    header('HTTP/1.1 ' . $status);
    show('refused', array('title' => $title, 'text' => $text));
}
