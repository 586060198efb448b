--TEST--
A text result, like the trace of it, ends at its first NUL.
--FILE--
<?php
include 'scripted_platform.inc';
answer(IPV4 . '-g host', exits(0), "library\0hidden");
show(get_network_hostname());
answer(IPV4 . '-g host', exits(0), "\0hidden");
show(get_network_hostname());
show_transcript();
--EXPECT--
"library"
""
TRACE[time]:Entering get_network_hostname:<>
read: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv4Manager.sh -g host
TRACE[time]:Output = :<library>
TRACE[time]:Exiting get_network_hostname:<>
TRACE[time]:Entering get_network_hostname:<>
read: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv4Manager.sh -g host
TRACE[time]:Output = :<>
TRACE[time]:Exiting get_network_hostname:<>
