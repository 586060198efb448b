--TEST--
A thread without a handle of its own reads all the same.
--FILE--
<?php
include 'scripted_platform.inc';
answer('thread', 'empty');
answer('getNetworkSettings', 'name', 'value');
show(get_fw_settings(new Session()));
show_transcript();
--EXPECT--
stdClass {name: "value"}
TRACE[time]:Entering get_fw_settings:<>
thread handle taken, empty
getNetworkSettings
TRACE[time]:Exiting get_fw_settings:<>
