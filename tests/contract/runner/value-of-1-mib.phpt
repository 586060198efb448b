--TEST--
A value of 1 MiB, which the kernel takes in no command line, is reported as a failure; the next call works.
--PLATFORM--
development
--FILE--
<?php
include 'scripted_platform.inc';
write_script(IPV4_SCRIPT, 'touch /tmp/canary');
show(set_network_hostname(new Session(), str_repeat('n', 1048576)));
show(file_exists('/tmp/canary'));
show(preg_match('/Argument list too long/', transcript()));
show_lines('/^(TRACE|Warning)/');
show(set_network_hostname(new Session(), 'library-8'));
show(file_exists('/tmp/canary'));
show_lines('/^(TRACE|Warning)/');
--EXPECT--
null
false
integer 1
TRACE[time]:Entering set_network_hostname:<>
Warning: set_network_hostname(): Could not set library hostname (code 0x00000001, http/src/network)
TRACE[time]:Exiting set_network_hostname:<>
null
true
TRACE[time]:Entering set_network_hostname:<>
TRACE[time]:Exiting set_network_hostname:<>
