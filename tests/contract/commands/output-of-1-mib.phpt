--TEST--
An output of 1 MiB is returned and traced whole.
--FILE--
<?php
include 'scripted_platform.inc';
$output = str_repeat("0123456789abcde\n", 65536) . 'end';
answer(IPV4 . '-g host', exits(0), $output);
echo get_network_hostname() == $output ? "returned\n" : "not returned\n";
echo strpos(transcript(), "Output = :<$output>\n") ? "traced\n" : "not traced\n";
--EXPECT--
returned
traced
