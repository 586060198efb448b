--TEST--
Each call makes an object of its own: one that the page has got stays what it was.
--FILE--
<?php
include 'scripted_platform.inc';
answer('getNetworkSettings', 'name', 'first');
$first = get_fw_settings(new Session());
answer('getNetworkSettings', 'name', 'second', 'other', 'third');
$second = get_fw_settings(new Session());
$second->other = 'changed';
show($first);
show($second);
--EXPECT--
stdClass {name: "first"}
stdClass {name: "second", other: "changed"}
