--TEST--
A wrong argument is refused before anything else is done: the entry trace only, and null.
--FILE--
<?php
include 'scripted_platform.inc';
show(set_network_dns());
show(set_network_dns(new Session()));
show(set_network_dns(new Session(), new Session(), 1));
show(set_network_dns('admin', new Session()));
show(set_network_dns(null, new Session()));
show(set_network_dns(new Session(), '10.1.1.1'));
show(set_network_dns(new Session(), null));
show(set_network_dns(new Session(), array('dnsPrimary' => '10.1.1.1')));
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
TRACE[time]:Entering set_network_dns:<>
Warning: set_network_dns() ...
TRACE[time]:Entering set_network_dns:<>
Warning: set_network_dns() ...
TRACE[time]:Entering set_network_dns:<>
Warning: set_network_dns() ...
TRACE[time]:Entering set_network_dns:<>
Warning: set_network_dns() ...
TRACE[time]:Entering set_network_dns:<>
Warning: set_network_dns() ...
TRACE[time]:Entering set_network_dns:<>
Warning: set_network_dns() ...
TRACE[time]:Entering set_network_dns:<>
Warning: set_network_dns() ...
TRACE[time]:Entering set_network_dns:<>
Warning: set_network_dns() ...
