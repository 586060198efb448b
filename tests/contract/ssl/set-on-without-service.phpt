--TEST--
When the configuration service is not there, that is reported, the restart is announced all the same, and nothing is changed.
--FILE--
<?php
include 'scripted_platform.inc';
answer('IMgmtAppConfig', 'empty');
show(set_ssl_settings(new Session(), true));
show_transcript();
--EXPECT--
null
TRACE[time]:Entering set_ssl_settings:<>
thread handle taken
IMgmtAppConfig handle taken, empty
report: Failed "Could not get the App Mgnt config interface" http/src/network
TRACE[time]:NOTE: The HTTP service will be restarted by appmanager in the new SSL Mode
Setting SSL to :<Enabled>
TRACE[time]:Exiting set_ssl_settings:<>
thread handle released
