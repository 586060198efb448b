--TEST--
The IPv6 functions answer with objects, arrays and booleans, and the worker runs to its end.
--FILE--
<?php
include 'scripted_platform.inc';
class Settings {
  var $staticEnabled = true;
  var $ipStatic = '2001:db8::10';
  var $gateway = '2001:db8::1';
  var $prefix = 64;
}
answer(IPV6 . '-g static', exits(0), '2001:db8::10/48?fe80::1');
answer(IPV6 . '-g all', exits(0), '2001:db8::10?fe80::1');
answer(IPV6 . '-l', exits(0), '1');
answer(IPV6 . '-L 0', exits(0));
answer(IPV6 . '-c -d on', exits(1));
answer(IPV6 . '-c -s 2001:db8::10/64?2001:db8::1', exits(0));
answer(WRAPPER . '/bin/touch /home/embedded/library/CoreService/dat/ipv6Enabled', exits(0));
show(get_network_configuration_ipv6(new Session()));
show(get_all_ipv6_addresses());
show(is_ipv6_enabled());
show(set_ipv6_enabled(new Session(), true));
show(is_ipv6_static_enabled());
show(is_stateless_enabled());
show(set_stateless_enabled(new Session(), false));
show(is_ipv6_dhcp_enabled());
show(set_ipv6_dhcp_enabled(new Session(), true));
show_transcript();
show(set_network_configuration_ipv6(new Session(), new Settings()));
run_thread();
show_transcript();
--EXPECT--
stdClass {staticEnabled: true, ipStatic: "2001:db8:0:0:0:0:0:10", gateway: "fe80:0:0:0:0:0:0:1", prefix: "48"}
array(0: "2001:db8::10", 1: "fe80::1")
false
null
true
true
null
false
null
TRACE[time]:Entering get_network_configuration_ipv6:<>
thread handle taken
session of "admin"
read: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv6Manager.sh -g static
TRACE[time]:Output = :<2001:db8::10/48?fe80::1>
TRACE[time]:getIPv6StaticIP() is returning: Enabled:TRUE IP: 2001:db8:0:0:0:0:0:10, GW: fe80:0:0:0:0:0:0:1, prefix: 48

:<>
TRACE[time]:Exiting get_network_configuration_ipv6:<>
thread handle released
TRACE[time]:Entering get_all_ipv6_addresses:<>
read: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv6Manager.sh -g all
TRACE[time]:Adding IPv6 :<2001:db8::10>
TRACE[time]:Adding IPv6 :<fe80::1>
TRACE[time]:Exiting get_all_ipv6_addresses:<>
TRACE[time]:Entering is_ipv6_enabled:<>
TRACE[time]:IPv6 was NOT enabled:<>
TRACE[time]:Exiting is_ipv6_enabled:<>
TRACE[time]:Entering set_ipv6_enabled:<>
run: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/touch /home/embedded/library/CoreService/dat/ipv6Enabled
TRACE[time]:Exiting set_ipv6_enabled:<>
TRACE[time]:Entering is_ipv6_static_enabled:<>
read: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv6Manager.sh -g static
TRACE[time]:Output = :<2001:db8::10/48?fe80::1>
TRACE[time]:IPv6 Static was enabled:<>
TRACE[time]:Exiting is_ipv6_static_enabled:<>
TRACE[time]:Entering is_stateless_enabled:<>
read: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv6Manager.sh -l
TRACE[time]:Exiting is_stateless_enabled:<>
TRACE[time]:Entering set_stateless_enabled:<>
TRACE[time]:Stateless is being DISABLED:<>
run: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv6Manager.sh -L 0
TRACE[time]:Exiting set_stateless_enabled:<>
TRACE[time]:Entering is_ipv6_dhcp_enabled:<>
TRACE[time]:IPv6 DHCP was NOT enabled:<>
TRACE[time]:Exiting is_ipv6_dhcp_enabled:<>
TRACE[time]:Entering set_ipv6_dhcp_enabled:<>
TRACE[time]:DHCP is being ENABLED:<>
run: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv6Manager.sh -c -d on
report: 0x00050030 "Failed to configure DHCP settings - Make sure you have a valid IPv6 DHCP server running." http/src/network
TRACE[time]:Exiting set_ipv6_dhcp_enabled:<>
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
TRACE[time]:Entering setIPv6StaticIP(), address::<2001:db8::10/64?2001:db8::1>
run: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv6Manager.sh -c -s 2001:db8::10/64?2001:db8::1


Data was: 2001:db8::10, 2001:db8::1, 64

TRACE[time]:The new Network settings have been applied!:<>
TRACE[time]:Leaving set_network_ipv6:<>
