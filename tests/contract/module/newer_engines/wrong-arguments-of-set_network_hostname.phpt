--TEST--
Wrong arguments of set_network_hostname are a warning in the engine's own words; the call leaves its entry trace and returns null.
--FILE--
<?php
include 'scripted_platform.inc';
show(set_network_hostname());
show(set_network_hostname(new Session()));
show(set_network_hostname(new Session(), 'library-8', 'more'));
show(set_network_hostname('admin', 'library-8'));
show(set_network_hostname(null, 'library-8'));
show(set_network_hostname(1, 'library-8'));
show(set_network_hostname(array('user' => 'admin'), 'library-8'));
show(set_network_hostname(new Session(), array('library-8')));
show(set_network_hostname(new Session(), new Session()));
show(set_network_hostname('library-8', new Session()));
show_transcript();
--EXPECT--
null
null
null
null
null
null
null
null
null
null
TRACE[time]:Entering set_network_hostname:<>
Warning: set_network_hostname() expects exactly 2 arguments, 0 given
TRACE[time]:Entering set_network_hostname:<>
Warning: set_network_hostname() expects exactly 2 arguments, 1 given
TRACE[time]:Entering set_network_hostname:<>
Warning: set_network_hostname() expects exactly 2 arguments, 3 given
TRACE[time]:Entering set_network_hostname:<>
Warning: set_network_hostname(): Argument #1 ($session) must be of type object, string given
TRACE[time]:Entering set_network_hostname:<>
Warning: set_network_hostname(): Argument #1 ($session) must be of type object, null given
TRACE[time]:Entering set_network_hostname:<>
Warning: set_network_hostname(): Argument #1 ($session) must be of type object, int given
TRACE[time]:Entering set_network_hostname:<>
Warning: set_network_hostname(): Argument #1 ($session) must be of type object, array given
TRACE[time]:Entering set_network_hostname:<>
Warning: set_network_hostname(): Argument #2 ($name) must be of type string, array given
TRACE[time]:Entering set_network_hostname:<>
Warning: set_network_hostname(): Argument #2 ($name) must be of type string, Session given
TRACE[time]:Entering set_network_hostname:<>
Warning: set_network_hostname(): Argument #1 ($session) must be of type object, string given
