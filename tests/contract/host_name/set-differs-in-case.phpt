--TEST--
A name that differs from the current one in letter case only is a new name.
--FILE--
<?php
include 'scripted_platform.inc';
answer('gethostname', 'library');
answer(IPV4 . '-n Library', exits(0));
answer('IMgmtAppConfig.getSSLEnabled', 'Succeeded', 0);
show(set_network_hostname(new Session(), 'Library'));
show_transcript();
--EXPECT--
null
TRACE[time]:Entering set_network_hostname:<>
thread handle taken
session of "admin"
gethostname: into 64 bytes
run: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv4Manager.sh -n Library
IMgmtAppConfig handle taken
IMgmtAppConfig.getSSLEnabled() -> Succeeded 0
IMgmtAppConfig handle released
TRACE[time]:Exiting set_network_hostname:<>
thread handle released
