--TEST--
When the host name cannot be set, the worker ends after a trace, without a report and without touching the addressing; SSL is switched on again all the same.
--FILE--
<?php
include 'scripted_platform.inc';
$settings = new Ipv4Settings();
$settings->hostname = 'library-8';
answer('gethostname', 'library');
answer(IPV4 . '-n library-8', exits(2));
answer('IMgmtAppConfig.getSSLEnabled', 'Succeeded', 1);
answer('IMgmtAppConfig.setSSLEnabled', 'Succeeded');
show(set_network_configuration_ipv4(new Session(), $settings));
forget_transcript();
run_thread();
show_transcript();
--EXPECT--
null
TRACE[time]:Entering set_network_ipv4:<>
usleep: 3000000
gethostname: into 64 bytes
run: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv4Manager.sh -n library-8
IMgmtAppConfig handle taken
IMgmtAppConfig.getSSLEnabled() -> Succeeded 1
IMgmtAppConfig.setSSLEnabled(true) -> Succeeded
IMgmtAppConfig handle released
TRACE[time]:Could not set library hostname:<0>
