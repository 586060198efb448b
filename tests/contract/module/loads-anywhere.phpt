--TEST--
The module loads from its own folder without any environment variable, and brings its libraries.
--PLATFORM--
development
--FILE--
<?php
include 'scripted_platform.inc';
echo shell_exec('cd / && env -i ' . getenv('SCRIPTED_PLATFORM_PHP') . ' -n -d extension=' . getenv('SCRIPTED_PLATFORM_MODULE') .
                ' -r "echo extension_loaded(\'network\');" 2>&1'), "\n";
--EXPECT--
1
