--TEST--
A failure to read the stateless mode is reported in words about the host name; the output decides all the same.
--FILE--
<?php
include 'scripted_platform.inc';
answer(IPV6 . '-l', exits(1), '1');
show(is_stateless_enabled());
answer(IPV6 . '-l', exits(1), '0');
show(is_stateless_enabled());
show_transcript();
--EXPECT--
true
false
TRACE[time]:Entering is_stateless_enabled:<>
read: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv6Manager.sh -l
report: Failed "Could not get hostname information" http/src/network
TRACE[time]:Exiting is_stateless_enabled:<>
TRACE[time]:Entering is_stateless_enabled:<>
read: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv6Manager.sh -l
report: Failed "Could not get hostname information" http/src/network
TRACE[time]:Exiting is_stateless_enabled:<>
