--TEST--
A page without an error handler shows a wrong argument as a warning with the page's file and line, and goes on.
--FILE--
<?php
$result = set_network_hostname('admin', 'library-8');
echo $result === null ? "null\n" : "not null\n";
--EXPECT--

Warning: set_network_hostname(): Argument #1 ($session) must be of type object, string given in /tmp/scripted_platform/page.php on line 2
null
