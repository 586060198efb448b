--TEST--
When DHCP cannot be switched on, the worker traces that and ends without a report and without its last line.
--FILE--
<?php
include 'scripted_platform.inc';
$settings = new Ipv4Settings();
$settings->dhcpEnabled = '1';
answer('gethostname', 'library');
answer(IPV4 . '-c -d on', exits(1));
show(set_network_configuration_ipv4(new Session(), $settings));
forget_transcript();
run_thread();
show_transcript();
--EXPECT--
null
TRACE[time]:Entering set_network_ipv4:<>
usleep: 3000000
gethostname: into 64 bytes
run: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv4Manager.sh -c -d on
TRACE[time]:Could not set network settings (dhcp on).:<0>
