--TEST--
A thread without a handle of its own sets the name all the same.
--FILE--
<?php
include 'scripted_platform.inc';
answer('thread', 'empty');
answer('gethostname', 'library');
show(set_network_hostname(new Session(), 'library'));
show_transcript();
--EXPECT--
null
TRACE[time]:Entering set_network_hostname:<>
thread handle taken, empty
session of "admin"
gethostname: into 64 bytes
TRACE[time]:Exiting set_network_hostname:<>
