--TEST--
What a script prints behind a NUL is not part of a text.
--PLATFORM--
development
--FILE--
<?php
include 'scripted_platform.inc';
write_script(IPV4_SCRIPT, "printf 'library\\000hidden'");
show(get_network_hostname());
show_lines('/^(TRACE|Warning)/');
--EXPECT--
"library"
TRACE[time]:Entering get_network_hostname:<>
TRACE[time]:Output = :<library>
TRACE[time]:Exiting get_network_hostname:<>
