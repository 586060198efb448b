--TEST--
A value that leaves a double quote open makes no command: nothing runs, and the failure is reported.
--PLATFORM--
development
--FILE--
<?php
include 'scripted_platform.inc';
write_script(IPV4_SCRIPT, 'touch /tmp/canary');
show(set_network_hostname(new Session(), 'library"8'));
show(file_exists('/tmp/canary'));
show(preg_match('/quote/', transcript()));
show_lines('/^(TRACE|Warning)/');
--EXPECT--
null
false
integer 1
TRACE[time]:Entering set_network_hostname:<>
Warning: set_network_hostname(): Could not set library hostname (code 0x00000001, http/src/network)
TRACE[time]:Exiting set_network_hostname:<>
