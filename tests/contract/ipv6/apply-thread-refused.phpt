--TEST--
When no thread can be had, that is reported in the words of the IPv4 function, the exit is traced all the same, and nothing is run.
--FILE--
<?php
include 'scripted_platform.inc';
answer('pthread_create', 11);
show(set_network_configuration_ipv6(new Session(), new Ipv6Settings()));
show_transcript();
--EXPECT--
null
TRACE[time]:Entering set_network_configuration_ipv6:<>
thread handle taken
session of "admin"
TRACE[time]:Firing off the thread to Set Network settings for IPv6:<>
thread set_network_ipv6: refused
report: Failed "Could not create thread to set network settings" http/src/network
TRACE[time]:Exiting set_network_configuration_ipv6:<>
thread handle released
