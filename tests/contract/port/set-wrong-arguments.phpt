--TEST--
A wrong argument is refused before anything else is done: the entry trace only, and null.
--FILE--
<?php
include 'scripted_platform.inc';
show(set_eth2_port_settings());
show(set_eth2_port_settings(new Session(), 1, 100));
show(set_eth2_port_settings(new Session(), 1, 100, 1, 1));
show(set_eth2_port_settings('admin', 1, 100, 1));
show(set_eth2_port_settings(null, 1, 100, 1));
show(set_eth2_port_settings(new Session(), 'on', 100, 1));
show(set_eth2_port_settings(new Session(), 1, 'fast', 1));
show(set_eth2_port_settings(new Session(), 1, 100, 'full'));
show(set_eth2_port_settings(new Session(), array(), 100, 1));
show(set_eth2_port_settings(new Session(), 1, 100, new Session()));
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
null
null
TRACE[time]:Entering set_eth2_port_settings:<>
Warning: set_eth2_port_settings() ...
TRACE[time]:Entering set_eth2_port_settings:<>
Warning: set_eth2_port_settings() ...
TRACE[time]:Entering set_eth2_port_settings:<>
Warning: set_eth2_port_settings() ...
TRACE[time]:Entering set_eth2_port_settings:<>
Warning: set_eth2_port_settings() ...
TRACE[time]:Entering set_eth2_port_settings:<>
Warning: set_eth2_port_settings() ...
TRACE[time]:Entering set_eth2_port_settings:<>
Warning: set_eth2_port_settings() ...
TRACE[time]:Entering set_eth2_port_settings:<>
Warning: set_eth2_port_settings() ...
TRACE[time]:Entering set_eth2_port_settings:<>
Warning: set_eth2_port_settings() ...
TRACE[time]:Entering set_eth2_port_settings:<>
Warning: set_eth2_port_settings() ...
TRACE[time]:Entering set_eth2_port_settings:<>
Warning: set_eth2_port_settings() ...
