--TEST--
A name counts up to its first NUL: compared like that, and set like that.
--FILE--
<?php
include 'scripted_platform.inc';
answer('gethostname', 'library');
show(set_network_hostname(new Session(), "library\0; reboot"));
show_transcript();
answer(IPV4 . '-n library-8', exits(0));
answer('IMgmtAppConfig.getSSLEnabled', 'Succeeded', 0);
show(set_network_hostname(new Session(), "library-8\0; reboot"));
show_transcript();
--EXPECT--
null
TRACE[time]:Entering set_network_hostname:<>
thread handle taken
session of "admin"
gethostname: into 64 bytes
TRACE[time]:Exiting set_network_hostname:<>
thread handle released
null
TRACE[time]:Entering set_network_hostname:<>
thread handle taken
session of "admin"
gethostname: into 64 bytes
run: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv4Manager.sh -n library-8
IMgmtAppConfig handle taken
IMgmtAppConfig.getSSLEnabled() -> Succeeded 0
IMgmtAppConfig handle released
TRACE[time]:Exiting set_network_hostname:<>
thread handle released
