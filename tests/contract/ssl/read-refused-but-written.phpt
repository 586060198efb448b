--TEST--
The mode is what the services have written, also when they then say that they failed.
--FILE--
<?php
include 'scripted_platform.inc';
answer('IMgmtAppConfig.getSSLEnabled', 'Failed', 1);
show(get_ssl_settings(new Session()));
show_transcript();
--EXPECT--
stdClass {isEnabled: true, port: integer 443, cipher: "RSA"}
TRACE[time]:Entering get_ssl_settings:<>
thread handle taken
TRACE[time]:Before slp->getAppMgmtConfigInterface():<>
IMgmtAppConfig handle taken
IMgmtAppConfig.getSSLEnabled() -> Failed 1
TRACE[time]:Exiting get_ssl_settings:<>
IMgmtAppConfig handle released
thread handle released
