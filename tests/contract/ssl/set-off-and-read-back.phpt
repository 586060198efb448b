--TEST--
SSL that has been switched off reads as off, with port and cipher, and is not switched off again.
--FILE--
<?php
include 'scripted_platform.inc';
answer('IMgmtAppConfig.getSSLEnabled', 'Succeeded', 1);
answer('IMgmtAppConfig.setSSLEnabled', 'Succeeded');
set_ssl_settings(new Session(), false);
answer('IMgmtAppConfig.getSSLEnabled', 'Succeeded', 0);
show(get_ssl_settings(new Session()));
set_ssl_settings(new Session(), false);
show_lines('/(SSLEnabled|Skipped)/');
--EXPECT--
stdClass {isEnabled: false, port: integer 443, cipher: "RSA"}
IMgmtAppConfig.getSSLEnabled() -> Succeeded 1
IMgmtAppConfig.setSSLEnabled(false) -> Succeeded
IMgmtAppConfig.getSSLEnabled() -> Succeeded 0
IMgmtAppConfig.getSSLEnabled() -> Succeeded 0
TRACE[time]:Skipped setting SSL - state did not change.:<>
