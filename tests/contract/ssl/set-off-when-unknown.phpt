--TEST--
A mode that the services refuse to tell counts as off: it is not switched off.
--FILE--
<?php
include 'scripted_platform.inc';
answer('IMgmtAppConfig.getSSLEnabled', 'Failed');
show(set_ssl_settings(new Session(), false));
show_transcript();
--EXPECT--
null
TRACE[time]:Entering set_ssl_settings:<>
thread handle taken
IMgmtAppConfig handle taken
TRACE[time]:NOTE: The HTTP service will be restarted by appmanager in the new SSL Mode
Setting SSL to :<Disabled>
IMgmtAppConfig.getSSLEnabled() -> Failed
TRACE[time]:Skipped setting SSL - state did not change.:<>
TRACE[time]:Exiting set_ssl_settings:<>
IMgmtAppConfig handle released
thread handle released
