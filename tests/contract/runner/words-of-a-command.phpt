--TEST--
A value comes to the script as the words that blanks and double quotes make of it; all other characters are letters.
--PLATFORM--
development
--FILE--
<?php
include 'scripted_platform.inc';
// Prints what it was called with to a file: what it prints itself goes nowhere.
write_script(IPV4_SCRIPT, 'printf "[%s]" "$@" >/tmp/words; echo >>/tmp/words');
$values = array('library-8', 'two words', '  many   blanks  ', '"in quotes"', 'half" quoted"', '""', "it's", "'single quotes'",
                'a;touch /tmp/canary', 'a|touch', 'a&', '$(reboot)', '`reboot`', '$HOME', '${PATH}', '*', '/et?', '~', '>/tmp/canary',
                '<in', '{a,b}', '!!', '#none', 'back\slash', '\\', '%s', '-n', '--', "\xC3\xBC\xFF", "\1\33");
foreach ($values as $value) {
  set_network_hostname(new Session(), $value);
  echo addcslashes($value, "\0..\37\177..\377"), ' -> ', addcslashes(trim(implode('', file('/tmp/words'))), "\0..\37\177..\377"), "\n";
}
show(file_exists('/tmp/canary'));
show_lines('/^Warning/');
--EXPECT--
library-8 -> [-n][library-8]
two words -> [-n][two][words]
  many   blanks   -> [-n][many][blanks]
"in quotes" -> [-n][in quotes]
half" quoted" -> [-n][half quoted]
"" -> [-n][]
it's -> [-n][it's]
'single quotes' -> [-n]['single][quotes']
a;touch /tmp/canary -> [-n][a;touch][/tmp/canary]
a|touch -> [-n][a|touch]
a& -> [-n][a&]
$(reboot) -> [-n][$(reboot)]
`reboot` -> [-n][`reboot`]
$HOME -> [-n][$HOME]
${PATH} -> [-n][${PATH}]
* -> [-n][*]
/et? -> [-n][/et?]
~ -> [-n][~]
>/tmp/canary -> [-n][>/tmp/canary]
<in -> [-n][<in]
{a,b} -> [-n][{a,b}]
!! -> [-n][!!]
#none -> [-n][#none]
back\slash -> [-n][back\slash]
\ -> [-n][\]
%s -> [-n][%s]
-n -> [-n][-n]
-- -> [-n][--]
\303\274\377 -> [-n][\303\274\377]
\001\033 -> [-n][\001\033]
false
