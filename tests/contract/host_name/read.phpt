--TEST--
The host name is the whole output of the host-name command.
--FILE--
<?php
include 'scripted_platform.inc';
answer(IPV4 . '-g host', exits(0), 'library-7');
show(get_network_hostname());
show_transcript();
--EXPECT--
"library-7"
TRACE[time]:Entering get_network_hostname:<>
read: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv4Manager.sh -g host
TRACE[time]:Output = :<library-7>
TRACE[time]:Exiting get_network_hostname:<>
