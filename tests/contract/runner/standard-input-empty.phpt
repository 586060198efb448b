--TEST--
A script that reads standard input finds its end at once.
--PLATFORM--
development
--FILE--
<?php
include 'scripted_platform.inc';
write_script(IPV4_SCRIPT, 'cat; readlink /proc/self/fd/0');
show(get_network_hostname());
--EXPECT--
"/dev/null"
