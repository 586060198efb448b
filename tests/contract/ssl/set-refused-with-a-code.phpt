--TEST--
A report carries the code that the change answered.
--FILE--
<?php
include 'scripted_platform.inc';
answer('IMgmtAppConfig.getSSLEnabled', 'Succeeded', 1);
answer('IMgmtAppConfig.setSSLEnabled', '0x00012345');
show(set_ssl_settings(new Session(), false));
show_transcript();
--EXPECT--
null
TRACE[time]:Entering set_ssl_settings:<>
thread handle taken
IMgmtAppConfig handle taken
TRACE[time]:NOTE: The HTTP service will be restarted by appmanager in the new SSL Mode
Setting SSL to :<Disabled>
IMgmtAppConfig.getSSLEnabled() -> Succeeded 1
IMgmtAppConfig.setSSLEnabled(false) -> 0x00012345
report: 0x00012345 "Could not set SSL settings" http/src/network
TRACE[time]:Exiting set_ssl_settings:<>
IMgmtAppConfig handle released
thread handle released
