--TEST--
A mode that the services refuse to tell is off, and nothing is reported.
--FILE--
<?php
include 'scripted_platform.inc';
answer('IMgmtAppConfig.getSSLEnabled', 'Failed');
show(get_ssl_settings(new Session()));
show_transcript();
--EXPECT--
stdClass {isEnabled: false, port: integer 443, cipher: "RSA"}
TRACE[time]:Entering get_ssl_settings:<>
thread handle taken
TRACE[time]:Before slp->getAppMgmtConfigInterface():<>
IMgmtAppConfig handle taken
IMgmtAppConfig.getSSLEnabled() -> Failed
TRACE[time]:Exiting get_ssl_settings:<>
IMgmtAppConfig handle released
thread handle released
