--TEST--
A value is cut at its first NUL before it becomes part of a command.
--PLATFORM--
development
--FILE--
<?php
include 'scripted_platform.inc';
write_script(IPV4_SCRIPT, 'printf "[%s]" "$@" >/tmp/words');
set_network_hostname(new Session(), "library-8\0 more");
echo implode('', file('/tmp/words')), "\n";
--EXPECT--
[-n][library-8]
