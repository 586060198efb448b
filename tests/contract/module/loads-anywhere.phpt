--TEST--
The module loads from its own folder without any environment variable of its own, and brings its libraries.
--PLATFORM--
development
--FILE--
<?php
include 'scripted_platform.inc';
echo shell_exec('cd / && env -i PHP_INI_SCAN_DIR= ' . getenv('SCRIPTED_PLATFORM_PHP') .
                ' -r "echo extension_loaded(\'network\');" 2>&1'), "\n";
--EXPECT--
1
