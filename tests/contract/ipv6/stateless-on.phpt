--TEST--
Stateless addressing is on when the script prints "1". No service is asked and no session attached.
--FILE--
<?php
include 'scripted_platform.inc';
answer(IPV6 . '-l', exits(0), '1');
show(is_stateless_enabled());
show_transcript();
--EXPECT--
true
TRACE[time]:Entering is_stateless_enabled:<>
read: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv6Manager.sh -l
TRACE[time]:Exiting is_stateless_enabled:<>
