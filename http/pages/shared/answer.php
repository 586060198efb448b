<?php
// How a request ends: with a page, at another page, refused, or given up.

// Shows templates/$template.php, which finds $values as variables, within the frame. Of $values the frame itself uses
// 'title', 'lead', 'errors', 'part_of' (the page whose place in the menu this one takes), 'refresh' (array of 'seconds' and
// 'address', for browsers without scripts), 'other_origins' (list) and 'restarts' (the page itself
// says what is on trial).
function show($template, $values)
{
    if ($GLOBALS['change_begun']) {
        ask_device(); // what it said was before the change
    }
    end_asking();
    send_headers(isset($values['other_origins']) ? $values['other_origins'] : array());
    $content = render($template, $values);
    $values['content'] = $content; // rendered first: what it reports is shown above it
    echo render(isset($GLOBALS['session']) ? 'frame' : 'bare', $values);
    exit;
}

// The appliance's name around every page, from the kernel: no script of the device can hold up all pages, and nobody who is not
// signed in makes the module write its trace.
function name_in_frame()
{
    $lines = is_readable('/proc/sys/kernel/hostname') ? file('/proc/sys/kernel/hostname') : array('');
    return trim($lines[0]);
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
    end_asking();
    if ($message != '' || $GLOBALS['audit_failed']) {
        return_to_session();
        $_SESSION['message'] = $message;
        $_SESSION['audit_failed'] = $GLOBALS['audit_failed'];
    }
    send_headers();
    header('Location: ' . $page, true, 303);
    exit;
}

// Answers with a file to be kept, never to be shown by the browser.
function send_file($name, $type, $content)
{
    begin_file($name, $type);
    echo $content;
    exit;
}

// What is printed from here on is the file.
function begin_file($name, $type)
{
    send_headers();
    header('Content-Type: ' . $type . '; charset=utf-8');
    header('Content-Disposition: attachment; filename="' . $name . '"');
}

// Ends a request that is not allowed.
function refuse($status, $title, $text)
{
    header('HTTP/1.1 ' . $status);
    show('refused', array('title' => $title, 'text' => $text));
}

// Ends what cannot go on safely, also on the command line.
function give_up($reason)
{
    error_log($reason);
    if (php_sapi_name() == 'cli') {
        exit(1);
    }
    refuse('500 Internal Server Error', 'The appliance cannot go on', $reason);
}

// At the end of a request whose page has died: the page of such errors, in the place of a blank one. The appliance's interpreter
// does not tell.
function answer_for_the_dead()
{
    $error = function_exists('error_get_last') ? error_get_last() : null;
    if (!$error || !($error['type'] & (E_ERROR | E_PARSE | E_CORE_ERROR | E_COMPILE_ERROR)) || php_sapi_name() == 'cli'
        || headers_sent()) {
        return;
    }
    while (ob_get_level() > 0) {
        ob_get_clean();
    }
    header('HTTP/1.1 500 Internal Server Error');
    send_headers();
    readfile(dirname(dirname(__FILE__)) . '/errors/500.html');
}

// The headers of every answer. $other_origins are further ones that the page may ask whether they are this appliance.
function send_headers($other_origins = array())
{
    $others = '';
    foreach ($other_origins as $origin) {
        // The policy knows no addresses in brackets, so that of IPv6 becomes its scheme alone.
        $others .= ' ' . (strpos($origin, '[') === false ? $origin : substr($origin, 0, strpos($origin, '/')));
    }
    header('Content-Type: text/html; charset=utf-8');
    header("Content-Security-Policy: default-src 'none'; script-src 'self'; style-src 'self'; img-src 'self';"
        . " connect-src 'self'$others; form-action 'self'; base-uri 'none'; frame-ancestors 'none'");
    header('X-Content-Type-Options: nosniff');
    header('X-Frame-Options: DENY');
    header('Referrer-Policy: no-referrer');
    header('Cache-Control: no-store');
}
