--TEST--
The information page shows one row of two columns, "network support" and "enabled", and nothing more.
--FILE--
<?php
include 'scripted_platform.inc';
echo shell_exec(getenv('SCRIPTED_PLATFORM_PHP') . ' -n -d extension=' . getenv('SCRIPTED_PLATFORM_MODULE') . ' --ri network');
show_transcript();
--EXPECT--

network

network support => enabled
