--TEST--
A line end in a value begins no new command.
--PLATFORM--
development
--FILE--
<?php
include 'scripted_platform.inc';
write_script(IPV4_SCRIPT, 'echo run >>/tmp/runs');
set_network_hostname(new Session(), "library-8\ntouch /tmp/canary\n");
echo implode('', file('/tmp/runs'));
show(file_exists('/tmp/canary'));
--EXPECT--
run
false
