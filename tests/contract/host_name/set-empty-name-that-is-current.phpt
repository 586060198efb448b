--TEST--
When the system has no host name, setting the empty text changes nothing.
--FILE--
<?php
include 'scripted_platform.inc';
answer('gethostname', '');
show(set_network_hostname(new Session(), ''));
show_transcript();
--EXPECT--
null
TRACE[time]:Entering set_network_hostname:<>
thread handle taken
session of "admin"
gethostname: into 64 bytes
TRACE[time]:Exiting set_network_hostname:<>
thread handle released
