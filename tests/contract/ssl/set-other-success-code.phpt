--TEST--
Every code with the top bit set is a success: nothing is reported.
--FILE--
<?php
include 'scripted_platform.inc';
answer('IMgmtAppConfig.getSSLEnabled', 'Succeeded', 0);
answer('IMgmtAppConfig.setSSLEnabled', '0xC0050006');
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
IMgmtAppConfig.setSSLEnabled(true) -> 0xC0050006
TRACE[time]:Exiting set_ssl_settings:<>
IMgmtAppConfig handle released
thread handle released
