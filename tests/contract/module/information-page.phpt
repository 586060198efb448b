--TEST--
The information page shows one row of two columns, "network support" and "enabled", and nothing more.
--FILE--
<?php
include 'world.inc';
echo shell_exec(getenv('WORLD_PHP') . ' -n -d extension=' . getenv('WORLD_MODULE') . ' --ri network');
show_transcript();
--EXPECT--

network

network support => enabled
