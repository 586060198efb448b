--TEST--
A page can silence the warning of a wrong argument like any other.
--FILE--
<?php
$result = @set_network_hostname('admin', 'library-8');
echo $result === null ? "null\n" : "not null\n";
--EXPECT--
null
