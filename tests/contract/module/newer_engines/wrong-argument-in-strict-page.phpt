--TEST--
A page with strict types is warned of a number for a text too: only there the engine refuses it.
--FILE--
<?php
declare(strict_types=1);
$result = set_network_hostname(new stdClass(), 42);
echo $result === null ? "null\n" : "not null\n";
--EXPECT--

Warning: set_network_hostname(): Argument #2 ($name) must be of type string, int given in /tmp/scripted_platform/page.php on line 3
null
