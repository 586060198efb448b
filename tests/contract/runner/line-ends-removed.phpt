--TEST--
All line ends at the end of an output are removed, and nothing else.
--PLATFORM--
development
--FILE--
<?php
include 'scripted_platform.inc';
foreach (array('library', 'library\n', 'library\n\n\n', 'library\r\n', '', '\n', '1\n', 'two\nlines\n', ' blanks \n', '\nfirst') as $output) {
  write_script(IPV4_SCRIPT, "printf '$output'");
  echo "$output -> ", text_of(get_network_hostname()), "\n";
}
show_lines('/^Warning/');
--EXPECT--
library -> "library"
library\n -> "library"
library\n\n\n -> "library"
library\r\n -> "library"
 -> ""
\n -> ""
1\n -> "1"
two\nlines\n -> "two\nlines"
 blanks \n -> " blanks "
\nfirst -> "\nfirst"
