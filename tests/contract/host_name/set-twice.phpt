--TEST--
A second call starts afresh: handle, session, current name.
--FILE--
<?php
include 'scripted_platform.inc';
answer('gethostname', 'library');
answer(IPV4 . '-n library-8', exits(0));
answer('IMgmtAppConfig.getSSLEnabled', 'Succeeded', 0);
set_network_hostname(new Session(), 'library-8');
answer('gethostname', 'library-8');
forget_transcript();
$session = new Session();
$session->user = 'operator';
show(set_network_hostname($session, 'library-8'));
show_transcript();
--EXPECT--
null
TRACE[time]:Entering set_network_hostname:<>
thread handle taken
session of "operator"
gethostname: into 64 bytes
TRACE[time]:Exiting set_network_hostname:<>
thread handle released
