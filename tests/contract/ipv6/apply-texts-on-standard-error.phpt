--TEST--
The texts on standard error are shown as they are, also where they look like a format.
--FILE--
<?php
include 'scripted_platform.inc';
$settings = new Ipv6Settings();
$settings->ipStatic = '%s%n';
$settings->gateway = '%d';
$settings->prefix = '%%';
answer(IPV6 . '-c -s %s%n/%%?%d', exits(0));
set_network_configuration_ipv6(new Session(), $settings);
forget_transcript();
run_thread();
show_transcript();
--EXPECT--
TRACE[time]:Entering set_network_ipv6:<>
TRACE[time]:Entering setIPv6StaticIP(), address::<%s%n/%%?%d>
run: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv6Manager.sh -c -s %s%n/%%?%d


Data was: %s%n, %d, %%

TRACE[time]:The new Network settings have been applied!:<>
TRACE[time]:Leaving set_network_ipv6:<>
