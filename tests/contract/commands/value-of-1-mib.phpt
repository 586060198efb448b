--TEST--
A value of 1 MiB reaches the command whole.
--FILE--
<?php
include 'scripted_platform.inc';
$name = str_repeat('0123456789abcdef', 65536);
answer('gethostname', 'library');
answer('IMgmtAppConfig.getSSLEnabled', 'Succeeded', 0);
answer(IPV4 . '-n ' . $name, exits(0));
show(set_network_hostname(new Session(), $name));
echo str_replace($name, 'NAME', transcript()) != transcript() ? "whole\n" : "not whole\n";
echo preg_match('/^(unexpected|report)/m', transcript()), " failures\n";
--EXPECT--
null
whole
0 failures
