--TEST--
Only exactly "1" means that stateless addressing is on, and no other text is a failure.
--FILE--
<?php
include 'scripted_platform.inc';
foreach (array('1', '', '0', 'yes', 'on', 'true', '10', '11', '1 ', ' 1', "1\n", "1\0", '1?', '01', '+1', '1.0') as $output) {
  answer(IPV6 . '-l', exits(0), $output);
  echo text_of($output), ' ', text_of(is_stateless_enabled()), "\n";
}
show_lines('/^report/');
--EXPECT--
"1" true
"" false
"0" false
"yes" false
"on" false
"true" false
"10" false
"11" false
"1 " false
" 1" false
"1\n" false
"1\000" false
"1?" false
"01" false
"+1" false
"1.0" false
