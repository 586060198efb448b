--TEST--
Switching stateless addressing on passes "1" to the script. No service is asked and no session attached.
--FILE--
<?php
include 'scripted_platform.inc';
answer(IPV6 . '-L 1', exits(0));
show(set_stateless_enabled(new Session(), true));
show_transcript();
--EXPECT--
null
TRACE[time]:Entering set_stateless_enabled:<>
TRACE[time]:Stateless is being ENABLED:<>
run: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv6Manager.sh -L 1
TRACE[time]:Exiting set_stateless_enabled:<>
