--TEST--
The object is what the utility library makes of an empty one, in its order; no session is attached and no interface taken.
--FILE--
<?php
include 'scripted_platform.inc';
answer('getNetworkSettings', 'zone', 'first', 'address', '192.0.2.1', 'middle', '');
show(get_fw_settings(new Session()));
show_transcript();
--EXPECT--
stdClass {zone: "first", address: "192.0.2.1", middle: ""}
TRACE[time]:Entering get_fw_settings:<>
thread handle taken
getNetworkSettings
TRACE[time]:Exiting get_fw_settings:<>
thread handle released
