--TEST--
SSL that is on already is not touched, though the restart has been announced.
--FILE--
<?php
include 'scripted_platform.inc';
answer('IMgmtAppConfig.getSSLEnabled', 'Succeeded', 1);
show(set_ssl_settings(new Session(), true));
show_transcript();
--EXPECT--
null
TRACE[time]:Entering set_ssl_settings:<>
thread handle taken
IMgmtAppConfig handle taken
TRACE[time]:NOTE: The HTTP service will be restarted by appmanager in the new SSL Mode
Setting SSL to :<Enabled>
IMgmtAppConfig.getSSLEnabled() -> Succeeded 1
TRACE[time]:Skipped setting SSL - state did not change.:<>
TRACE[time]:Exiting set_ssl_settings:<>
IMgmtAppConfig handle released
thread handle released
