--TEST--
The name of the primary port is a platform text that is built when the module is loaded and goes when the process does.
--FILE--
<?php
include 'scripted_platform.inc';
echo shell_exec('SCRIPTED_PLATFORM_SHOWS_TEXTS=1 LD_PRELOAD=' . dirname(getenv('SCRIPTED_PLATFORM_MODULE')) . '/libdovan_util.so ' .
                getenv('SCRIPTED_PLATFORM_PHP') . ' -r "echo \'page\', chr(10);" 2>&1');
--EXPECT--
text "Primary Ethernet Connector" built
page
text "Primary Ethernet Connector" gone
