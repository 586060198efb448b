--TEST--
Loading the module and starting and ending a request leave no trace and ask nothing of the platform.
--FILE--
<?php
include 'world.inc';
echo shell_exec('LD_PRELOAD=' . dirname(getenv('WORLD_MODULE')) . '/libdovan_util.so ' . getenv('WORLD_PHP') .
                ' -n -d extension=' . getenv('WORLD_MODULE') . ' -r "echo 1;" 2>&1'), "\n";
show_transcript();
--EXPECT--
1
