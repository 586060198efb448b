--TEST--
A line is the level, the time in brackets, the message, and the extra text between ":<" and ">".
--FILE--
<?php
include 'scripted_platform.inc';
answer(IPV4 . '-g host', exits(0), 'library-7');
get_network_hostname();
foreach (preg_grep('/^TRACE/', file(TRACE_LOG)) as $line) {
  echo preg_match('/^TRACE\[([^\[\]]+)\]:(Entering get_network_hostname:<>|Output = :<library-7>|Exiting get_network_hostname:<>)\n$/',
                  $line, $parts) ? $parts[2] : $line, "\n";
}
--EXPECT--
Entering get_network_hostname:<>
Output = :<library-7>
Exiting get_network_hostname:<>
