--TEST--
The wanted mode is compared, as 0 or 1, with the whole 32-bit flag: any other value differs from both.
--FILE--
<?php
include 'scripted_platform.inc';
answer('IMgmtAppConfig.setSSLEnabled', 'Succeeded');
foreach (array(true, false) as $wanted) {
  foreach (array('0', '1', '2', '0x100', '0x10000', '0x80000000', '0xFFFFFFFF') as $flag) {
    answer('IMgmtAppConfig.getSSLEnabled', 'Succeeded', $flag);
    set_ssl_settings(new Session(), $wanted);
    show_lines('/(SSLEnabled|Skipped)/');
  }
}
--EXPECT--
IMgmtAppConfig.getSSLEnabled() -> Succeeded 0
IMgmtAppConfig.setSSLEnabled(true) -> Succeeded
IMgmtAppConfig.getSSLEnabled() -> Succeeded 1
TRACE[time]:Skipped setting SSL - state did not change.:<>
IMgmtAppConfig.getSSLEnabled() -> Succeeded 2
IMgmtAppConfig.setSSLEnabled(true) -> Succeeded
IMgmtAppConfig.getSSLEnabled() -> Succeeded 0x100
IMgmtAppConfig.setSSLEnabled(true) -> Succeeded
IMgmtAppConfig.getSSLEnabled() -> Succeeded 0x10000
IMgmtAppConfig.setSSLEnabled(true) -> Succeeded
IMgmtAppConfig.getSSLEnabled() -> Succeeded 0x80000000
IMgmtAppConfig.setSSLEnabled(true) -> Succeeded
IMgmtAppConfig.getSSLEnabled() -> Succeeded 0xFFFFFFFF
IMgmtAppConfig.setSSLEnabled(true) -> Succeeded
IMgmtAppConfig.getSSLEnabled() -> Succeeded 0
TRACE[time]:Skipped setting SSL - state did not change.:<>
IMgmtAppConfig.getSSLEnabled() -> Succeeded 1
IMgmtAppConfig.setSSLEnabled(false) -> Succeeded
IMgmtAppConfig.getSSLEnabled() -> Succeeded 2
IMgmtAppConfig.setSSLEnabled(false) -> Succeeded
IMgmtAppConfig.getSSLEnabled() -> Succeeded 0x100
IMgmtAppConfig.setSSLEnabled(false) -> Succeeded
IMgmtAppConfig.getSSLEnabled() -> Succeeded 0x10000
IMgmtAppConfig.setSSLEnabled(false) -> Succeeded
IMgmtAppConfig.getSSLEnabled() -> Succeeded 0x80000000
IMgmtAppConfig.setSSLEnabled(false) -> Succeeded
IMgmtAppConfig.getSSLEnabled() -> Succeeded 0xFFFFFFFF
IMgmtAppConfig.setSSLEnabled(false) -> Succeeded
