--TEST--
When no thread can be had, that is reported, the exit is traced all the same, and nothing is run.
--FILE--
<?php
include 'scripted_platform.inc';
answer('pthread_create', 11);
show(set_network_configuration_ipv4(new Session(), new Ipv4Settings()));
show_transcript();
--EXPECT--
null
TRACE[time]:Entering set_network_configuration_ipv4:<>
thread handle taken
session of "admin"
TRACE[time]:Firing off the thread to Set Network settings:<>
thread set_network_ipv4: refused
report: Failed "Could not create thread to set network settings" http/src/network
TRACE[time]:Exiting set_network_configuration_ipv4:<>
thread handle released
