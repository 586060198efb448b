--TEST--
A current name that cannot be read counts as the empty one: every other name is new.
--FILE--
<?php
include 'scripted_platform.inc';
answer('gethostname');
answer(IPV4 . '-n library', exits(0));
answer('IMgmtAppConfig.getSSLEnabled', 'Succeeded', 0);
foreach (array('library', '') as $name) {
  show(set_network_hostname(new Session(), $name));
  show_transcript();
}
--EXPECT--
null
TRACE[time]:Entering set_network_hostname:<>
thread handle taken
session of "admin"
gethostname: into 64 bytes
run: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv4Manager.sh -n library
IMgmtAppConfig handle taken
IMgmtAppConfig.getSSLEnabled() -> Succeeded 0
IMgmtAppConfig handle released
TRACE[time]:Exiting set_network_hostname:<>
thread handle released
null
TRACE[time]:Entering set_network_hostname:<>
thread handle taken
session of "admin"
gethostname: into 64 bytes
TRACE[time]:Exiting set_network_hostname:<>
thread handle released
