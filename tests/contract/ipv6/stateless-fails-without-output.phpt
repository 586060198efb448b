--TEST--
A script that fails and prints nothing means that stateless addressing is off.
--FILE--
<?php
include 'scripted_platform.inc';
answer(IPV6 . '-l', killed_by(9), '');
show(is_stateless_enabled());
show_transcript();
--EXPECT--
false
TRACE[time]:Entering is_stateless_enabled:<>
read: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv6Manager.sh -l
report: Failed "Could not get hostname information" http/src/network
TRACE[time]:Exiting is_stateless_enabled:<>
