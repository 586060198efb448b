--TEST--
Reading the host name takes no handle and attaches no session, also when a session is passed.
--FILE--
<?php
include 'scripted_platform.inc';
answer(IPV4 . '-g host', exits(0), 'library');
show(get_network_hostname(new Session()));
show_transcript();
--EXPECT--
"library"
TRACE[time]:Entering get_network_hostname:<>
read: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv4Manager.sh -g host
TRACE[time]:Output = :<library>
TRACE[time]:Exiting get_network_hostname:<>
