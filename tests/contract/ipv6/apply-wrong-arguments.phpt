--TEST--
A wrong argument is refused before anything else is done: the entry trace only, null, and no worker.
--FILE--
<?php
include 'scripted_platform.inc';
show(set_network_configuration_ipv6());
show(set_network_configuration_ipv6(new Session()));
show(set_network_configuration_ipv6(new Session(), new Ipv6Settings(), 1));
show(set_network_configuration_ipv6('admin', new Ipv6Settings()));
show(set_network_configuration_ipv6(null, new Ipv6Settings()));
show(set_network_configuration_ipv6(new Session(), 'settings'));
show(set_network_configuration_ipv6(new Session(), null));
show(set_network_configuration_ipv6(new Session(), array('prefix' => '64')));
show_refusals();
--EXPECT--
null
null
null
null
null
null
null
null
TRACE[time]:Entering set_network_configuration_ipv6:<>
Warning: set_network_configuration_ipv6() ...
TRACE[time]:Entering set_network_configuration_ipv6:<>
Warning: set_network_configuration_ipv6() ...
TRACE[time]:Entering set_network_configuration_ipv6:<>
Warning: set_network_configuration_ipv6() ...
TRACE[time]:Entering set_network_configuration_ipv6:<>
Warning: set_network_configuration_ipv6() ...
TRACE[time]:Entering set_network_configuration_ipv6:<>
Warning: set_network_configuration_ipv6() ...
TRACE[time]:Entering set_network_configuration_ipv6:<>
Warning: set_network_configuration_ipv6() ...
TRACE[time]:Entering set_network_configuration_ipv6:<>
Warning: set_network_configuration_ipv6() ...
TRACE[time]:Entering set_network_configuration_ipv6:<>
Warning: set_network_configuration_ipv6() ...
