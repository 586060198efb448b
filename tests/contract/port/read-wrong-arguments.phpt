--TEST--
A wrong argument is refused before anything else is done: the entry trace only, and null.
--FILE--
<?php
include 'scripted_platform.inc';
show(get_eth2_port_settings());
show(get_eth2_port_settings(new Session(), 2));
show(get_eth2_port_settings('admin'));
show(get_eth2_port_settings(null));
show(get_eth2_port_settings(array('user' => 'admin')));
show_refusals();
--EXPECT--
null
null
null
null
null
TRACE[time]:Entering get_eth2_port_settings:<>
Warning: get_eth2_port_settings() ...
TRACE[time]:Entering get_eth2_port_settings:<>
Warning: get_eth2_port_settings() ...
TRACE[time]:Entering get_eth2_port_settings:<>
Warning: get_eth2_port_settings() ...
TRACE[time]:Entering get_eth2_port_settings:<>
Warning: get_eth2_port_settings() ...
TRACE[time]:Entering get_eth2_port_settings:<>
Warning: get_eth2_port_settings() ...
