--TEST--
After a new host name SSL, which is on, is switched on again; then DHCP is switched on.
--FILE--
<?php
include 'scripted_platform.inc';
$settings = new Ipv4Settings();
$settings->hostname = 'library-8';
$settings->dhcpEnabled = true;
answer('gethostname', 'library');
answer(IPV4 . '-n library-8', exits(0));
answer('IMgmtAppConfig.getSSLEnabled', 'Succeeded', 1);
answer('IMgmtAppConfig.setSSLEnabled', 'Failed');
answer(IPV4 . '-c -d on', exits(0));
set_network_configuration_ipv4(new Session(), $settings);
forget_transcript();
run_thread();
show_transcript();
--EXPECT--
TRACE[time]:Entering set_network_ipv4:<>
usleep: 3000000
gethostname: into 64 bytes
run: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv4Manager.sh -n library-8
IMgmtAppConfig handle taken
IMgmtAppConfig.getSSLEnabled() -> Succeeded 1
IMgmtAppConfig.setSSLEnabled(true) -> Failed
IMgmtAppConfig handle released
run: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv4Manager.sh -c -d on
TRACE[time]:Leaving set_network_ipv4:<>
