--TEST--
What a script says on standard error reaches the server's, between the traces of the call, and is not part of the output.
--PLATFORM--
development
--FILE--
<?php
include 'scripted_platform.inc';
write_script(IPV4_SCRIPT, 'echo "what went wrong" >&2; echo library-7');
show(get_network_hostname());
show_transcript();
--EXPECT--
"library-7"
TRACE[time]:Entering get_network_hostname:<>
what went wrong
TRACE[time]:Output = :<library-7>
TRACE[time]:Exiting get_network_hostname:<>
