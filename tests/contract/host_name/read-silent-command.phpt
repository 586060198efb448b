--TEST--
A host-name command that succeeds and prints nothing gives the empty text, and nothing is reported.
--FILE--
<?php
include 'scripted_platform.inc';
answer(IPV4 . '-g host', exits(0), '');
show(get_network_hostname());
show_transcript();
--EXPECT--
""
TRACE[time]:Entering get_network_hostname:<>
read: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv4Manager.sh -g host
TRACE[time]:Output = :<>
TRACE[time]:Exiting get_network_hostname:<>
