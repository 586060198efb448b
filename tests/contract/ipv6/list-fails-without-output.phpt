--TEST--
A script that fails and prints nothing is reported once and gives an empty array.
--FILE--
<?php
include 'scripted_platform.inc';
answer(IPV6 . '-g all', exits(1), '');
show(get_all_ipv6_addresses());
answer(IPV6 . '-g all', killed_by(9), '');
show(get_all_ipv6_addresses());
show_transcript();
--EXPECT--
array()
array()
TRACE[time]:Entering get_all_ipv6_addresses:<>
read: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv6Manager.sh -g all
report: Failed "Failed to get IPv6 address." http/src/network
TRACE[time]:Exiting get_all_ipv6_addresses:<>
TRACE[time]:Entering get_all_ipv6_addresses:<>
read: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv6Manager.sh -g all
report: Failed "Failed to get IPv6 address." http/src/network
TRACE[time]:Exiting get_all_ipv6_addresses:<>
