--TEST--
Where the utility library adds nothing, the object is empty.
--FILE--
<?php
include 'scripted_platform.inc';
answer('getNetworkSettings');
show(get_fw_settings(new Session()));
show_transcript();
--EXPECT--
stdClass {}
TRACE[time]:Entering get_fw_settings:<>
thread handle taken
getNetworkSettings
TRACE[time]:Exiting get_fw_settings:<>
thread handle released
