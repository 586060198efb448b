--TEST--
A second call after the first one's worker has ended starts afresh.
--FILE--
<?php
include 'scripted_platform.inc';
$settings = new Ipv4Settings();
answer('gethostname', 'library');
answer(IPV4 . '-c -s 10.0.0.5?255.0.0.0?10.0.0.1', exits(1));
answer(IPV4 . '-c -d on', exits(0));
set_network_configuration_ipv4(new Session(), $settings);
run_thread();
$settings->dhcpEnabled = 'on';
set_network_configuration_ipv4(new Session(), $settings);
run_thread();
show_transcript();
--EXPECT--
TRACE[time]:Entering set_network_configuration_ipv4:<>
thread handle taken
session of "admin"
TRACE[time]:Firing off the thread to Set Network settings:<>
thread set_network_ipv4: created
thread detached
TRACE[time]:Exiting set_network_configuration_ipv4:<>
thread handle released
TRACE[time]:Entering set_network_ipv4:<>
usleep: 3000000
gethostname: into 64 bytes
run: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv4Manager.sh -c -s 10.0.0.5?255.0.0.0?10.0.0.1
TRACE[time]:Could not set network settings (dhcp off).:<0>
TRACE[time]:Entering set_network_configuration_ipv4:<>
thread handle taken
session of "admin"
TRACE[time]:Firing off the thread to Set Network settings:<>
thread set_network_ipv4: created
thread detached
TRACE[time]:Exiting set_network_configuration_ipv4:<>
thread handle released
TRACE[time]:Entering set_network_ipv4:<>
usleep: 3000000
gethostname: into 64 bytes
run: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv4Manager.sh -c -d on
TRACE[time]:Leaving set_network_ipv4:<>
