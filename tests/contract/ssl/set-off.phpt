--TEST--
Switching SSL off announces the restart, then changes the mode.
--FILE--
<?php
include 'scripted_platform.inc';
answer('IMgmtAppConfig.getSSLEnabled', 'Succeeded', 1);
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
IMgmtAppConfig.getSSLEnabled() -> Succeeded 1
IMgmtAppConfig.setSSLEnabled(false) -> Succeeded
TRACE[time]:Exiting set_ssl_settings:<>
IMgmtAppConfig handle released
thread handle released
