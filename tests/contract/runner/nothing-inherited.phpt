--TEST--
A script inherits no descriptor but the three standard ones.
--PLATFORM--
development
--FILE--
<?php
include 'scripted_platform.inc';
$open = fopen('/etc/passwd', 'r');
// The fourth descriptor is the listing's own.
write_script(IPV4_SCRIPT, 'exec ls /proc/self/fd');
show(get_network_hostname());
--EXPECT--
"0\n1\n2\n3"
