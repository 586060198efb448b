<?php
// Whether the check's own JSON is the interpreter's: prints what differs, and how many texts were the same.
include dirname(__FILE__) . '/../../appliance/launcher/check/pages/json.php';

$texts = array('[]', '{}', '[null,true,false]', '[1,-2,0]', '"a\"b\\\\c/d"', '{"a":[1,{"b":"c d"}],"e":{}}', '["' . str_repeat('a', 1048576) . '"]',
    '["line\\nend\\tand\\r"]', '[1', '{"a":1', '[1]]', 'word', '');
foreach (file(dirname(__FILE__) . '/../../appliance/launcher/check/table') as $row) {
    if (preg_match('/^(?:only \w+ )?\w+ (\[.*\]) ->/', $row, $parts)) {
        $texts[] = str_replace('@', '{"user":"check"}', $parts[1]);
    }
}
$same = 0;
foreach ($texts as $text) {
    $value = json_decode($text);
    $own = value_of_json($text);
    if (json_last_error() == 0 ? json_of($own) === json_encode($value, JSON_UNESCAPED_SLASHES) && $own == $value : $own === false) {
        ++$same;
    } else {
        echo 'differs: ', substr($text, 0, 200), "\n";
    }
}
echo $same > 30 ? 'all the same' : "only $same texts", "\n";
