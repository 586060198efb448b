--TEST--
A text counts up to its first NUL, the host name's comparison included.
--FILE--
<?php
include 'scripted_platform.inc';
$settings = new Ipv4Settings();
$settings->hostname = "library\0; reboot";
$settings->ip = "10.0.0.5\0; reboot";
$settings->netmask = "\0" . '255.0.0.0';
$settings->gateway = "10.0.0.1\0";
answer('gethostname', 'library');
answer(IPV4 . '-c -s 10.0.0.5??10.0.0.1', exits(0));
set_network_configuration_ipv4(new Session(), $settings);
forget_transcript();
run_thread();
show_transcript();
--EXPECT--
TRACE[time]:Entering set_network_ipv4:<>
usleep: 3000000
gethostname: into 64 bytes
run: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv4Manager.sh -c -s 10.0.0.5??10.0.0.1
TRACE[time]:Leaving set_network_ipv4:<>
