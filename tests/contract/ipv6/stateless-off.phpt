--TEST--
Stateless addressing is off when the script prints "0".
--FILE--
<?php
include 'scripted_platform.inc';
answer(IPV6 . '-l', exits(0), '0');
show(is_stateless_enabled());
show_transcript();
--EXPECT--
false
TRACE[time]:Entering is_stateless_enabled:<>
read: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv6Manager.sh -l
TRACE[time]:Exiting is_stateless_enabled:<>
