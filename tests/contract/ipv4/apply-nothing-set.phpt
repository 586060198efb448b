--TEST--
Of an object without any property, the empty host name and three empty fields go to the script, which decides.
--FILE--
<?php
include 'scripted_platform.inc';
answer('gethostname', 'library');
answer(IPV4 . '-n ', exits(0));
answer('IMgmtAppConfig.getSSLEnabled', 'Succeeded', 0);
answer(IPV4 . '-c -s ??', exits(2));
show(set_network_configuration_ipv4(new Session(), new stdClass()));
forget_transcript();
run_thread();
show_transcript();
--EXPECT--
null
TRACE[time]:Entering set_network_ipv4:<>
usleep: 3000000
gethostname: into 64 bytes
run: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv4Manager.sh -n
IMgmtAppConfig handle taken
IMgmtAppConfig.getSSLEnabled() -> Succeeded 0
IMgmtAppConfig handle released
run: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv4Manager.sh -c -s ??
TRACE[time]:Could not set network settings (dhcp off).:<0>
