--TEST--
A wrong argument is refused before anything else is done: the entry trace only, null, and no worker.
--FILE--
<?php
include 'scripted_platform.inc';
show(set_network_configuration_ipv4());
show(set_network_configuration_ipv4(new Session()));
show(set_network_configuration_ipv4(new Session(), new Ipv4Settings(), 1));
show(set_network_configuration_ipv4('admin', new Ipv4Settings()));
show(set_network_configuration_ipv4(null, new Ipv4Settings()));
show(set_network_configuration_ipv4(new Session(), 'settings'));
show(set_network_configuration_ipv4(new Session(), null));
show(set_network_configuration_ipv4(new Session(), array('ip' => '10.0.0.5')));
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
TRACE[time]:Entering set_network_configuration_ipv4:<>
Warning: set_network_configuration_ipv4() ...
TRACE[time]:Entering set_network_configuration_ipv4:<>
Warning: set_network_configuration_ipv4() ...
TRACE[time]:Entering set_network_configuration_ipv4:<>
Warning: set_network_configuration_ipv4() ...
TRACE[time]:Entering set_network_configuration_ipv4:<>
Warning: set_network_configuration_ipv4() ...
TRACE[time]:Entering set_network_configuration_ipv4:<>
Warning: set_network_configuration_ipv4() ...
TRACE[time]:Entering set_network_configuration_ipv4:<>
Warning: set_network_configuration_ipv4() ...
TRACE[time]:Entering set_network_configuration_ipv4:<>
Warning: set_network_configuration_ipv4() ...
TRACE[time]:Entering set_network_configuration_ipv4:<>
Warning: set_network_configuration_ipv4() ...
