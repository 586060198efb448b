--TEST--
A process that serves one request after the other answers each like the first.
--FILE--
<?php
include 'scripted_platform.inc';
answer(IPV4 . '-g host', exits(0), 'library');
$page = platform_file('ask.php');
append_to($page, '<?php echo get_network_hostname(), "\n";');
echo shell_exec('LD_PRELOAD=' . dirname(getenv('SCRIPTED_PLATFORM_MODULE')) . '/libdovan_util.so php-cgi -q -n -T 3 -d extension=' .
                getenv('SCRIPTED_PLATFORM_MODULE') . " $page 2>/dev/null");
--EXPECT--
library
library
library
