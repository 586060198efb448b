--TEST--
Loading the module and starting and ending a request leave no trace and ask nothing of the platform.
--FILE--
<?php
include 'scripted_platform.inc';
echo shell_exec('LD_PRELOAD=' . dirname(getenv('SCRIPTED_PLATFORM_MODULE')) . '/libdovan_util.so ' . getenv('SCRIPTED_PLATFORM_PHP') .
                ' -r "echo 1;" 2>&1'), "\n";
show_transcript();
--EXPECT--
1
