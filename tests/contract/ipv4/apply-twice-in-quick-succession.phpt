--TEST--
Two quick calls make two workers, each with the settings of its own call.
--FILE--
<?php
include 'scripted_platform.inc';
$settings = new Ipv4Settings();
answer('gethostname', 'library');
answer(IPV4 . '-c -s 10.0.0.5?255.0.0.0?10.0.0.1', exits(0));
answer(IPV4 . '-c -s 10.0.0.6?255.0.0.0?10.0.0.1', exits(0));
set_network_configuration_ipv4(new Session(), $settings);
$settings->ip = '10.0.0.6';
set_network_configuration_ipv4(new Session(), $settings);
show_transcript();
run_threads(2);
$lines = explode("\n", trim(masked_transcript()));
sort($lines);
echo implode("\n", $lines), "\n";
--EXPECT--
TRACE[time]:Entering set_network_configuration_ipv4:<>
thread handle taken
session of "admin"
TRACE[time]:Firing off the thread to Set Network settings:<>
thread set_network_ipv4: created
thread detached
TRACE[time]:Exiting set_network_configuration_ipv4:<>
thread handle released
TRACE[time]:Entering set_network_configuration_ipv4:<>
thread handle taken
session of "admin"
TRACE[time]:Firing off the thread to Set Network settings:<>
thread set_network_ipv4: created
thread detached
TRACE[time]:Exiting set_network_configuration_ipv4:<>
thread handle released
TRACE[time]:Entering set_network_ipv4:<>
TRACE[time]:Entering set_network_ipv4:<>
TRACE[time]:Leaving set_network_ipv4:<>
TRACE[time]:Leaving set_network_ipv4:<>
gethostname: into 64 bytes
gethostname: into 64 bytes
run: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv4Manager.sh -c -s 10.0.0.5?255.0.0.0?10.0.0.1
run: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv4Manager.sh -c -s 10.0.0.6?255.0.0.0?10.0.0.1
usleep: 3000000
usleep: 3000000
