--TEST--
What a script prints while it sets a value does not get into the page.
--PLATFORM--
development
--FILE--
<?php
include 'scripted_platform.inc';
write_script(IPV4_SCRIPT, 'echo "not for the page"; touch /tmp/canary');
show(set_network_hostname(new Session(), 'library-8'));
show(file_exists('/tmp/canary'));
--EXPECT--
null
true
