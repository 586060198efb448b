--TEST--
A host-name script that a signal ended, or any result but zero, stops the worker before the addressing, with DHCP wanted, too.
--FILE--
<?php
include 'scripted_platform.inc';
$settings = new Ipv4Settings();
$settings->hostname = 'library-8';
$settings->dhcpEnabled = '1';
answer('gethostname', 'library');
answer('IMgmtAppConfig.getSSLEnabled', 'Succeeded', 0);
foreach (array(killed_by(9), -1, exits(127)) as $result) {
  answer(IPV4 . '-n library-8', $result);
  set_network_configuration_ipv4(new Session(), $settings);
  forget_transcript();
  run_thread();
  show_transcript();
}
--EXPECT--
TRACE[time]:Entering set_network_ipv4:<>
usleep: 3000000
gethostname: into 64 bytes
run: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv4Manager.sh -n library-8
IMgmtAppConfig handle taken
IMgmtAppConfig.getSSLEnabled() -> Succeeded 0
IMgmtAppConfig handle released
TRACE[time]:Could not set library hostname:<0>
TRACE[time]:Entering set_network_ipv4:<>
usleep: 3000000
gethostname: into 64 bytes
run: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv4Manager.sh -n library-8
IMgmtAppConfig handle taken
IMgmtAppConfig.getSSLEnabled() -> Succeeded 0
IMgmtAppConfig handle released
TRACE[time]:Could not set library hostname:<0>
TRACE[time]:Entering set_network_ipv4:<>
usleep: 3000000
gethostname: into 64 bytes
run: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv4Manager.sh -n library-8
IMgmtAppConfig handle taken
IMgmtAppConfig.getSSLEnabled() -> Succeeded 0
IMgmtAppConfig handle released
TRACE[time]:Could not set library hostname:<0>
