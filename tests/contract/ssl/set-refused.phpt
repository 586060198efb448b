--TEST--
A change that the services refuse is reported; the call ends as ever.
--FILE--
<?php
include 'scripted_platform.inc';
answer('IMgmtAppConfig.getSSLEnabled', 'Succeeded', 0);
answer('IMgmtAppConfig.setSSLEnabled', 'Failed');
show(set_ssl_settings(new Session(), true));
show_transcript();
--EXPECT--
null
TRACE[time]:Entering set_ssl_settings:<>
thread handle taken
IMgmtAppConfig handle taken
TRACE[time]:NOTE: The HTTP service will be restarted by appmanager in the new SSL Mode
Setting SSL to :<Enabled>
IMgmtAppConfig.getSSLEnabled() -> Succeeded 0
IMgmtAppConfig.setSSLEnabled(true) -> Failed
report: Failed "Could not set SSL settings" http/src/network
TRACE[time]:Exiting set_ssl_settings:<>
IMgmtAppConfig handle released
thread handle released
