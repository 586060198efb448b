--TEST--
Two quick calls make two workers, each with the settings of its own call.
--FILE--
<?php
include 'scripted_platform.inc';
$settings = new Ipv6Settings();
answer(IPV6 . '-c -s 2001:db8::10/64?2001:db8::1', exits(0));
answer(IPV6 . '-r ', exits(0));
set_network_configuration_ipv6(new Session(), $settings);
$settings->staticEnabled = '';
set_network_configuration_ipv6(new Session(), $settings);
show_transcript();
run_threads(2);
$lines = explode("\n", trim(masked_transcript()));
sort($lines);
echo implode("\n", preg_grep('/./', $lines)), "\n";
--EXPECT--
TRACE[time]:Entering set_network_configuration_ipv6:<>
thread handle taken
session of "admin"
TRACE[time]:Firing off the thread to Set Network settings for IPv6:<>
thread set_network_ipv6: created
thread detached
TRACE[time]:Exiting set_network_configuration_ipv6:<>
thread handle released
TRACE[time]:Entering set_network_configuration_ipv6:<>
thread handle taken
session of "admin"
TRACE[time]:Firing off the thread to Set Network settings for IPv6:<>
thread set_network_ipv6: created
thread detached
TRACE[time]:Exiting set_network_configuration_ipv6:<>
thread handle released
Data was: 2001:db8::10, 2001:db8::1, 64
TRACE[time]:Disabling IPv6 Static addresses:<>
TRACE[time]:Entering setIPv6StaticIP(), address::<2001:db8::10/64?2001:db8::1>
TRACE[time]:Entering set_network_ipv6:<>
TRACE[time]:Entering set_network_ipv6:<>
TRACE[time]:Leaving set_network_ipv6:<>
TRACE[time]:Leaving set_network_ipv6:<>
TRACE[time]:The new Network settings have been applied!:<>
TRACE[time]:The new Network settings have been applied!:<>
run: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv6Manager.sh -c -s 2001:db8::10/64?2001:db8::1
run: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv6Manager.sh -r
