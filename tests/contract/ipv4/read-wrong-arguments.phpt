--TEST--
A wrong argument is refused before anything else is done: the entry trace only, and null.
--FILE--
<?php
include 'scripted_platform.inc';
show(get_network_configuration_ipv4());
show(get_network_configuration_ipv4(new Session(), new Session()));
show(get_network_configuration_ipv4('admin'));
show(get_network_configuration_ipv4(null));
show(get_network_configuration_ipv4(1));
show(get_network_configuration_ipv4(array('user' => 'admin')));
show_refusals();
--EXPECT--
null
null
null
null
null
null
TRACE[time]:Entering get_network_configuration_ipv4:<>
Warning: get_network_configuration_ipv4() ...
TRACE[time]:Entering get_network_configuration_ipv4:<>
Warning: get_network_configuration_ipv4() ...
TRACE[time]:Entering get_network_configuration_ipv4:<>
Warning: get_network_configuration_ipv4() ...
TRACE[time]:Entering get_network_configuration_ipv4:<>
Warning: get_network_configuration_ipv4() ...
TRACE[time]:Entering get_network_configuration_ipv4:<>
Warning: get_network_configuration_ipv4() ...
TRACE[time]:Entering get_network_configuration_ipv4:<>
Warning: get_network_configuration_ipv4() ...
