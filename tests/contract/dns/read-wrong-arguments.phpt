--TEST--
A wrong argument is refused before anything else is done: the entry trace only, and null.
--FILE--
<?php
include 'scripted_platform.inc';
show(get_network_dns());
show(get_network_dns(new Session(), new Session()));
show(get_network_dns('admin'));
show(get_network_dns(null));
show(get_network_dns(array('user' => 'admin')));
show_refusals();
--EXPECT--
null
null
null
null
null
TRACE[time]:Entering get_network_dns:<>
Warning: get_network_dns() ...
TRACE[time]:Entering get_network_dns:<>
Warning: get_network_dns() ...
TRACE[time]:Entering get_network_dns:<>
Warning: get_network_dns() ...
TRACE[time]:Entering get_network_dns:<>
Warning: get_network_dns() ...
TRACE[time]:Entering get_network_dns:<>
Warning: get_network_dns() ...
