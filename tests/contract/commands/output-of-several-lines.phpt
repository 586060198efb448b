--TEST--
Line ends within an output stay: only the runner takes them away, and only at the end.
--FILE--
<?php
include 'scripted_platform.inc';
answer(IPV4 . '-g host', exits(0), "one\ntwo\n");
show(get_network_hostname());
show_transcript();
--EXPECT--
"one\ntwo\n"
TRACE[time]:Entering get_network_hostname:<>
read: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv4Manager.sh -g host
TRACE[time]:Output = :<one
two
>
TRACE[time]:Exiting get_network_hostname:<>
