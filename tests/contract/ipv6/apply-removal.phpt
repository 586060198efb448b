--TEST--
Without a text in "staticEnabled", the static address is removed at once; the script is given no address, only the blank behind its option.
--FILE--
<?php
include 'scripted_platform.inc';
$settings = new Ipv6Settings();
$settings->staticEnabled = null;
answer(IPV6 . '-r ', exits(0));
show(set_network_configuration_ipv6(new Session(), $settings));
run_thread();
show_transcript();
--EXPECT--
null
TRACE[time]:Entering set_network_configuration_ipv6:<>
thread handle taken
session of "admin"
TRACE[time]:Firing off the thread to Set Network settings for IPv6:<>
thread set_network_ipv6: created
thread detached
TRACE[time]:Exiting set_network_configuration_ipv6:<>
thread handle released
TRACE[time]:Entering set_network_ipv6:<>
TRACE[time]:Disabling IPv6 Static addresses:<>
run: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv6Manager.sh -r
TRACE[time]:The new Network settings have been applied!:<>
TRACE[time]:Leaving set_network_ipv6:<>
