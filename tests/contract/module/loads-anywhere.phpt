--TEST--
The module loads from its own folder without any environment variable, and brings its libraries.
--PLATFORM--
development
--FILE--
<?php
include 'world.inc';
echo shell_exec('cd / && env -i ' . getenv('WORLD_PHP') . ' -n -d extension=' . getenv('WORLD_MODULE') .
                ' -r "echo extension_loaded(\'network\');" 2>&1'), "\n";
--EXPECT--
1
