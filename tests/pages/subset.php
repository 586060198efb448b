<?php
// What the pages, and the contract tests of every engine, may not use, because the appliance's interpreter (4.3) does not have
// it or because today's has no longer: prints each finding as FILE:LINE: what, and ends with status 1 when there is any.
//
//   php subset.php FOLDER STUB     FOLDER/{htdocs,shared,templates}/*.php, which call all functions that STUB declares

// Functions that were there before 4.4 and are there still.
$old = array('abs', 'addcslashes', 'array_diff', 'array_fill', 'array_intersect', 'array_keys', 'array_merge',
    'array_reverse', 'array_shift', 'array_slice', 'array_splice', 'array_unique', 'arsort', 'basename', 'bin2hex',
    'ceil', 'chgrp', 'chmod', 'chown', 'chr', 'clearstatcache', 'closedir', 'count', 'crc32', 'crypt', 'date',
    'dechex', 'define', 'defined', 'dirname', 'end', 'error_log', 'error_reporting', 'exec', 'explode', 'extract',
    'fclose', 'feof', 'fflush', 'fgetc', 'fgets', 'file', 'file_exists', 'filegroup', 'filemtime', 'fileowner',
    'fileperms', 'filesize', 'flock', 'fopen', 'fread', 'fseek', 'ftell', 'ftruncate', 'func_get_args',
    'function_exists', 'fwrite', 'get_class', 'get_object_vars', 'getenv', 'getmypid', 'gettype', 'glob', 'gmdate',
    'gmmktime', 'header', 'headers_sent', 'hexdec', 'htmlspecialchars', 'implode', 'in_array', 'ini_set', 'intval',
    'is_array', 'is_bool', 'is_dir', 'is_file', 'is_link', 'is_object', 'is_readable', 'is_string', 'is_uploaded_file',
    'ksort', 'ltrim', 'max', 'md5', 'microtime', 'min', 'mkdir', 'ob_get_clean', 'ob_get_level', 'ob_start', 'opendir',
    'ord', 'pclose', 'php_sapi_name', 'php_uname', 'popen', 'preg_grep', 'preg_match', 'preg_match_all', 'preg_quote',
    'preg_replace', 'preg_split', 'printf', 'proc_close', 'proc_open', 'putenv', 'rawurlencode', 'readdir', 'readfile',
    'register_shutdown_function', 'rename', 'reset', 'rewind', 'rtrim', 'serialize', 'session_cache_limiter',
    'session_destroy', 'session_id', 'session_save_path', 'session_start', 'session_write_close', 'set_error_handler',
    'sha1', 'shell_exec', 'sort', 'sprintf', 'str_repeat', 'str_replace', 'stream_select', 'stream_set_blocking',
    'stripslashes', 'strlen', 'strpos', 'strrev', 'strspn', 'strstr', 'strtolower', 'strtotime', 'strtoupper', 'strtr',
    'substr', 'substr_count', 'symlink', 'time', 'touch', 'trim', 'ucfirst', 'umask', 'unlink', 'unserialize',
    'urldecode', 'urlencode', 'usleep', 'usort');
// Only behind function_exists() of the same name, in the same function.
$guarded = array('error_get_last', 'fsync', 'get_magic_quotes_gpc', 'password_hash');

// Words and signs of the language that came later.
$late = array(T_ABSTRACT, T_ATTRIBUTE, T_CATCH, T_CLASS_C, T_CLONE, T_COALESCE, T_COALESCE_EQUAL, T_CONST, T_DIR, T_ELLIPSIS,
    T_ENUM, T_FINAL, T_FINALLY, T_FN, T_GOTO, T_IMPLEMENTS, T_INSTANCEOF, T_INTERFACE, T_MATCH, T_NAME_FULLY_QUALIFIED,
    T_NAME_QUALIFIED, T_NAME_RELATIVE, T_NAMESPACE, T_NS_SEPARATOR, T_NULLSAFE_OBJECT_OPERATOR, T_OPEN_TAG_WITH_ECHO,
    T_PAAMAYIM_NEKUDOTAYIM, T_POW, T_POW_EQUAL, T_PRIVATE, T_PROTECTED, T_PUBLIC, T_READONLY, T_SPACESHIP, T_STATIC, T_THROW,
    T_TRAIT, T_TRY, T_USE, T_YIELD, T_YIELD_FROM);

list(, $folder, $stub) = $argv;
$declared = functions_of(file_get_contents($stub));
$files = glob("$folder/{htdocs,shared,templates}/*.php", GLOB_BRACE);
foreach ($files as $file) {
    $declared = array_merge($declared, functions_of(file_get_contents($file)));
}
$findings = 0;
$called = array();
foreach ($files as $file) {
    check($file, tokens_of(file_get_contents($file)));
}
foreach (functions_of(file_get_contents($stub)) as $function) {
    if (!isset($called[$function])) {
        report($stub, 0, "no page calls $function");
    }
}
exit($findings > 0 ? 1 : 0);

// Without white space and comments; each an array of number, text and line.
function tokens_of($code)
{
    $tokens = array();
    $line = 1;
    foreach (token_get_all($code) as $token) {
        $token = is_array($token) ? $token : array(0, $token, $line);
        $line = $token[2];
        if (!in_array($token[0], array(T_WHITESPACE, T_COMMENT, T_DOC_COMMENT))) {
            $tokens[] = $token;
        }
    }
    return $tokens;
}

function functions_of($code)
{
    $names = array();
    $tokens = tokens_of($code);
    foreach ($tokens as $i => $token) {
        if ($token[0] == T_FUNCTION && $tokens[$i + 1][0] == T_STRING) {
            $names[] = $tokens[$i + 1][1];
        }
    }
    return $names;
}

function check($file, $tokens)
{
    $guards = array();
    $openers = array(); // what stands before each parenthesis that is open
    foreach ($tokens as $i => $token) {
        list($number, $text, $line) = $token;
        $before = $i > 0 ? $tokens[$i - 1] : array(0, '', 0);
        $after = isset($tokens[$i + 1]) ? $tokens[$i + 1] : array(0, '', 0);
        if ($text == '(') {
            $openers[] = $before[0];
        } elseif ($text == ')') {
            array_pop($openers);
        }
        if ($text == ',' && $after[1] == ')' && end($openers) != T_ARRAY) {
            report($file, $line, 'a comma before the closing parenthesis');
        } elseif ($number == T_STRING && $after[1] == ':' && in_array($before[1], array('(', ','))) {
            report($file, $line, 'an argument by its name');
        } elseif ($number == T_STRING && $after[1] == '(' && $before[1] == '(' && in_array(end($openers), array(T_EMPTY, T_ISSET))) {
            report($file, $line, 'empty() or isset() of what a function returns');
        } elseif ($number == T_DOUBLE_ARROW && end($openers) == T_LIST) {
            report($file, $line, 'keys in list()');
        } elseif ($number == T_START_HEREDOC && strpos($text, "'") !== false) {
            report($file, $line, 'a nowdoc text');
        } elseif (in_array($number, array(T_LNUMBER, T_DNUMBER)) && preg_match('/_|^0[bo]/i', $text)) {
            report($file, $line, "the number $text");
        } elseif ($number == T_VARIABLE && $after[1] == '{') {
            report($file, $line, 'an index in braces, which today\'s no longer knows');
        } elseif ($number == T_FUNCTION && in_array($after[1], array('__construct', '__destruct'))) {
            report($file, $line, $after[1] . '(), which 4.3 does not call');
        }
        if (in_array($number, $GLOBALS['late'])) {
            report($file, $line, "\"$text\" is not known to 4.3");
        } elseif ($number == T_FUNCTION) {
            $guards = array();
            if ($after[0] != T_STRING) {
                report($file, $line, 'a closure');
            }
            check_types($file, $tokens, $i);
        } elseif ($number == T_VAR && $after[0] != T_VARIABLE) {
            report($file, $line, 'a property with a type');
        } elseif ($text == '[' && !in_array($before[0], array(T_VARIABLE, T_STRING)) && !in_array($before[1], array(']', '}'))) {
            report($file, $line, $before[1] == ')' ? 'an index of what a function returns' : 'a short array');
        } elseif ($text == '?' && $after[1] == ':') {
            report($file, $line, '"?:" without a middle');
        } elseif ($number == T_OBJECT_OPERATOR && $before[1] == ')') {
            report($file, $line, 'a property of what a function returns');
        } elseif ($number == T_FOREACH) {
            check_foreach($file, $tokens, $i);
        } elseif ($number == T_STRING && $after[1] == '(' && $before[0] != T_FUNCTION && $before[0] != T_NEW) {
            if ($text == 'function_exists' && $tokens[$i + 2][0] == T_CONSTANT_ENCAPSED_STRING) {
                $guards[] = trim($tokens[$i + 2][1], '\'"');
            }
            check_call($file, $line, $text, $guards);
        }
    }
}

function check_types($file, $tokens, $i)
{
    for ($depth = 0; $tokens[$i][1] != ')' || $depth > 1; $i++) {
        $depth += $tokens[$i][1] == '(' ? 1 : ($tokens[$i][1] == ')' ? -1 : 0);
        if ($tokens[$i][0] == T_VARIABLE && !in_array($tokens[$i - 1][1], array('(', ',', '&'))) {
            report($file, $tokens[$i][2], 'a parameter with a type');
        }
    }
    if ($tokens[$i + 1][1] == ':') {
        report($file, $tokens[$i][2], 'a type of what a function returns');
    }
}

function check_foreach($file, $tokens, $i)
{
    for (; $tokens[$i][0] != T_AS; $i++);
    for (; $tokens[$i][1] != ')'; $i++) {
        if ($tokens[$i][1] == '&' || $tokens[$i][0] == T_LIST) {
            report($file, $tokens[$i][2], '"' . $tokens[$i][1] . '" in foreach');
        }
    }
}

function check_call($file, $line, $name, $guards)
{
    $GLOBALS['called'][$name] = true;
    if (in_array($name, $GLOBALS['guarded'])) {
        if (!in_array($name, $guards)) {
            report($file, $line, "$name() without function_exists() before it");
        }
    } elseif (!in_array($name, $GLOBALS['old']) && !in_array($name, $GLOBALS['declared'])) {
        report($file, $line, "$name() is not in the list of what both interpreters have");
    }
}

function report($file, $line, $what)
{
    echo "$file:$line: $what\n";
    $GLOBALS['findings']++;
}
