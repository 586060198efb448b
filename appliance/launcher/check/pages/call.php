<?php
/* Calls one function of the module and answers with what it returned and what it warned of, as JSON. Without a
   function: the names of all. Served only while the functions are being checked. */

include 'json.php';

$warnings = array();

function note_warning($level, $message)
{
    global $warnings;
    $warnings[] = $message;
    return true;
}

$functions = get_extension_funcs('network');
header('Content-Type: application/json');
if (!isset($_REQUEST['function'])) {
    echo encoded($functions), "\n";
} elseif (!in_array($_REQUEST['function'], $functions)) {
    header('HTTP/1.1 404 Not Found');
    echo encoded('no function of the module: ' . $_REQUEST['function']), "\n";
} else {
    $arguments = decoded($_REQUEST['arguments']);
    if (!is_array($arguments)) {
        header('HTTP/1.1 400 Bad Request');
        echo encoded('no list of arguments: ' . $_REQUEST['arguments']), "\n";
        exit;
    }
    set_error_handler('note_warning');
    $answer = new stdClass();
    $answer->answer = call_user_func_array($_REQUEST['function'], $arguments);
    $answer->warnings = $warnings;
    echo encoded($answer), "\n";
}
