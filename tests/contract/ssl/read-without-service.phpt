--TEST--
When the configuration service is not there, that is reported, and the mode is off.
--FILE--
<?php
include 'scripted_platform.inc';
answer('IMgmtAppConfig', 'empty');
show(get_ssl_settings(new Session()));
show_transcript();
--EXPECT--
stdClass {isEnabled: false, port: integer 443, cipher: "RSA"}
TRACE[time]:Entering get_ssl_settings:<>
thread handle taken
TRACE[time]:Before slp->getAppMgmtConfigInterface():<>
IMgmtAppConfig handle taken, empty
report: Failed "Could not get the App Mgnt config interface" http/src/network
TRACE[time]:Exiting get_ssl_settings:<>
thread handle released
