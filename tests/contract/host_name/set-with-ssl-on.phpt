--TEST--
A new host name is set by the script, and SSL, which is on, is switched on again.
--FILE--
<?php
include 'scripted_platform.inc';
answer('gethostname', 'library');
answer(IPV4 . '-n library-8', exits(0));
answer('IMgmtAppConfig.getSSLEnabled', 'Succeeded', 1);
answer('IMgmtAppConfig.setSSLEnabled', 'Succeeded');
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
IMgmtAppConfig.getSSLEnabled() -> Succeeded 1
IMgmtAppConfig.setSSLEnabled(true) -> Succeeded
IMgmtAppConfig handle released
TRACE[time]:Exiting set_network_hostname:<>
thread handle released
