--TEST--
A script that succeeds and prints nothing gives the empty text; nothing is reported.
--PLATFORM--
development
--FILE--
<?php
include 'scripted_platform.inc';
write_script(IPV4_SCRIPT, 'exit 0');
show(get_network_hostname());
show(set_network_hostname(new Session(), 'library-8'));
show_lines('/^(TRACE|Warning)/');
--EXPECT--
""
null
TRACE[time]:Entering get_network_hostname:<>
TRACE[time]:Output = :<>
TRACE[time]:Exiting get_network_hostname:<>
TRACE[time]:Entering set_network_hostname:<>
TRACE[time]:Exiting set_network_hostname:<>
