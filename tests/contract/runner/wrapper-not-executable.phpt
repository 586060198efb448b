--TEST--
A command wrapper that cannot be executed is reported, and the runner names it.
--PLATFORM--
development
--FILE--
<?php
include 'scripted_platform.inc';
write_script(IPV4_SCRIPT, 'echo library-7');
chmod('/usr/bin/cmdwrap', 0644);
show(get_network_hostname());
show(preg_match('|/usr/bin/cmdwrap.*Permission denied|', transcript()));
show_lines('/^(TRACE|Warning)/');
--EXPECT--
""
integer 1
TRACE[time]:Entering get_network_hostname:<>
Warning: get_network_hostname(): Could not get hostname information (code 0x00050006, http/src/network)
TRACE[time]:Output = :<>
TRACE[time]:Exiting get_network_hostname:<>
