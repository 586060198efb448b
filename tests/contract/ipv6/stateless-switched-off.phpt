--TEST--
Switching stateless addressing off passes "0" to the script, also when it is off already.
--FILE--
<?php
include 'scripted_platform.inc';
answer(IPV6 . '-L 0', exits(0));
show(set_stateless_enabled(new Session(), false));
show_transcript();
--EXPECT--
null
TRACE[time]:Entering set_stateless_enabled:<>
TRACE[time]:Stateless is being DISABLED:<>
run: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv6Manager.sh -L 0
TRACE[time]:Exiting set_stateless_enabled:<>
