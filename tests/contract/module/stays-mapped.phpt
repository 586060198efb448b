--TEST--
The module is marked to stay mapped when the engine unloads it: a worker may still run in it.
--FILE--
<?php
include 'scripted_platform.inc';
echo preg_match('/FLAGS_1.*\bNODELETE\b/', shell_exec('readelf --dynamic ' . getenv('SCRIPTED_PLATFORM_MODULE'))), "\n";
--EXPECT--
1
