--TEST--
SSL that is off is shown as off, with the same port and cipher.
--FILE--
<?php
include 'scripted_platform.inc';
answer('IMgmtAppConfig.getSSLEnabled', 'Succeeded', 0);
show(get_ssl_settings(new Session()));
show_transcript();
--EXPECT--
stdClass {isEnabled: false, port: integer 443, cipher: "RSA"}
TRACE[time]:Entering get_ssl_settings:<>
thread handle taken
TRACE[time]:Before slp->getAppMgmtConfigInterface():<>
IMgmtAppConfig handle taken
IMgmtAppConfig.getSSLEnabled() -> Succeeded 0
TRACE[time]:Exiting get_ssl_settings:<>
IMgmtAppConfig handle released
thread handle released
