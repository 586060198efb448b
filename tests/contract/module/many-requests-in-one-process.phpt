--TEST--
A process that serves one request after the other answers each like the first.
--FILE--
<?php
include 'world.inc';
answer(IPV4 . '-g host', exits(0), 'library');
$page = world_file('ask.php');
append_to($page, '<?php echo get_network_hostname(), "\n";');
echo shell_exec('LD_PRELOAD=' . dirname(getenv('WORLD_MODULE')) . '/libdovan_util.so php-cgi -q -n -T 3 -d extension=' .
                getenv('WORLD_MODULE') . " $page 2>/dev/null");
--EXPECT--
library
library
library
