--TEST--
The worker applies what the settings were at the call, not what the page makes of them afterwards.
--FILE--
<?php
include 'scripted_platform.inc';
$settings = new Ipv4Settings();
answer('gethostname', 'library');
answer(IPV4 . '-c -s 10.0.0.5?255.0.0.0?10.0.0.1', exits(0));
set_network_configuration_ipv4(new Session(), $settings);
$settings->hostname = 'another';
$settings->dhcpEnabled = '1';
$settings->ip = '10.9.9.9';
$settings->netmask = '255.255.255.255';
$settings->gateway = '10.9.9.1';
forget_transcript();
run_thread();
show_transcript();
--EXPECT--
TRACE[time]:Entering set_network_ipv4:<>
usleep: 3000000
gethostname: into 64 bytes
run: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv4Manager.sh -c -s 10.0.0.5?255.0.0.0?10.0.0.1
TRACE[time]:Leaving set_network_ipv4:<>
