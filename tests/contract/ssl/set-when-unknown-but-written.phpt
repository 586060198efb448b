--TEST--
The current mode is what the services have written, also when they then say that they failed.
--FILE--
<?php
include 'scripted_platform.inc';
answer('IMgmtAppConfig.getSSLEnabled', 'Failed', 1);
answer('IMgmtAppConfig.setSSLEnabled', 'Succeeded');
show(set_ssl_settings(new Session(), false));
show_transcript();
--EXPECT--
null
TRACE[time]:Entering set_ssl_settings:<>
thread handle taken
IMgmtAppConfig handle taken
TRACE[time]:NOTE: The HTTP service will be restarted by appmanager in the new SSL Mode
Setting SSL to :<Disabled>
IMgmtAppConfig.getSSLEnabled() -> Failed 1
IMgmtAppConfig.setSSLEnabled(false) -> Succeeded
TRACE[time]:Exiting set_ssl_settings:<>
IMgmtAppConfig handle released
thread handle released
