--TEST--
Without the command wrapper no command can be run: that is reported, and the runner names the wrapper.
--PLATFORM--
development
--FILE--
<?php
include 'scripted_platform.inc';
write_script(IPV4_SCRIPT, 'echo library-7');
unlink('/usr/bin/cmdwrap');
show(get_network_hostname());
show(set_network_hostname(new Session(), 'library-8'));
show(preg_match('|/usr/bin/cmdwrap.*No such file|', transcript()));
show_lines('/^(TRACE|Warning)/');
--EXPECT--
""
null
integer 1
TRACE[time]:Entering get_network_hostname:<>
Warning: get_network_hostname(): Could not get hostname information (code 0x00050006, http/src/network)
TRACE[time]:Output = :<>
TRACE[time]:Exiting get_network_hostname:<>
TRACE[time]:Entering set_network_hostname:<>
Warning: set_network_hostname(): Could not set library hostname (code 0x00000001, http/src/network)
TRACE[time]:Exiting set_network_hostname:<>
