--TEST--
Null for a text is what the engine makes of it, the empty text; nothing but the engine's own remark is added.
--FILE--
<?php
include 'scripted_platform.inc';
answer('gethostname', '');
show(set_network_hostname(new Session(), null));
show_transcript();
--EXPECT--
null
TRACE[time]:Entering set_network_hostname:<>
Deprecated: set_network_hostname(): Passing null to parameter #2 ($name) of type string is deprecated
thread handle taken
session of "admin"
gethostname: into 64 bytes
TRACE[time]:Exiting set_network_hostname:<>
thread handle released
