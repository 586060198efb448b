--TEST--
Setting the current host name runs no script, asks nothing about SSL and reports nothing.
--FILE--
<?php
include 'scripted_platform.inc';
answer('gethostname', 'library-7');
show(set_network_hostname(new Session(), 'library-7'));
show_transcript();
--EXPECT--
null
TRACE[time]:Entering set_network_hostname:<>
thread handle taken
session of "admin"
gethostname: into 64 bytes
TRACE[time]:Exiting set_network_hostname:<>
thread handle released
