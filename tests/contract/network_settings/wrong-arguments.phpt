--TEST--
A wrong argument is refused before anything else is done: the entry trace only, and null.
--FILE--
<?php
include 'scripted_platform.inc';
show(get_fw_settings());
show(get_fw_settings(new Session(), 1));
show(get_fw_settings('admin'));
show(get_fw_settings(null));
show(get_fw_settings(array('user' => 'admin')));
show_refusals();
--EXPECT--
null
null
null
null
null
TRACE[time]:Entering get_fw_settings:<>
Warning: get_fw_settings() ...
TRACE[time]:Entering get_fw_settings:<>
Warning: get_fw_settings() ...
TRACE[time]:Entering get_fw_settings:<>
Warning: get_fw_settings() ...
TRACE[time]:Entering get_fw_settings:<>
Warning: get_fw_settings() ...
TRACE[time]:Entering get_fw_settings:<>
Warning: get_fw_settings() ...
