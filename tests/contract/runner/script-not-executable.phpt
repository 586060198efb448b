--TEST--
A script needs no permission to be executed: the shell reads it.
--PLATFORM--
development
--FILE--
<?php
include 'scripted_platform.inc';
write_script(IPV4_SCRIPT, 'echo library-7');
chmod(IPV4_SCRIPT, 0444);
show(get_network_hostname());
show_lines('/^Warning/');
--EXPECT--
"library-7"
