<?php
/* Calls one function of the module and answers with what it returned and what it warned of, as JSON. Without a
   function: the names of all. Served only while the functions are being checked. */

$warnings = array();

function note_warning($level, $message)
{
    global $warnings;
    $warnings[] = $message;
    return true;
}

$module = new ReflectionExtension('network');
$functions = array_keys($module->getFunctions());
header('Content-Type: application/json');
if (!isset($_REQUEST['function'])) {
    echo json_encode($functions), "\n";
} elseif (!in_array($_REQUEST['function'], $functions)) {
    header('HTTP/1.1 404 Not Found');
    echo json_encode('no function of the module: ' . $_REQUEST['function']), "\n";
} else {
    set_error_handler('note_warning');
    $answer = call_user_func_array($_REQUEST['function'], json_decode($_REQUEST['arguments']));
    echo json_encode(array('answer' => $answer, 'warnings' => $warnings), JSON_UNESCAPED_SLASHES), "\n";
}
