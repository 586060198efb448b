--TEST--
Between the server and the script there is no further process: neither a shell nor the wrapper stays.
--PLATFORM--
development
--FILE--
<?php
include 'scripted_platform.inc';
write_script(IPV4_SCRIPT, 'echo $PPID');
show(get_network_hostname() == getmypid());
--EXPECT--
true
