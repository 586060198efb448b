--TEST--
When the services do not say whether SSL is on, it counts as off, whatever the flag holds, and nothing is reported.
--FILE--
<?php
include 'scripted_platform.inc';
answer('gethostname', 'library');
answer(IPV4 . '-n library-8', exits(0));
answer('IMgmtAppConfig.getSSLEnabled', 'Failed', 1);
show(set_network_hostname(new Session(), 'library-8'));
show_transcript();
--EXPECT--
null
TRACE[time]:Entering set_network_hostname:<>
thread handle taken
session of "admin"
gethostname: into 64 bytes
run: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv4Manager.sh -n library-8
IMgmtAppConfig handle taken
IMgmtAppConfig.getSSLEnabled() -> Failed 1
IMgmtAppConfig handle released
TRACE[time]:Exiting set_network_hostname:<>
thread handle released
