--TEST--
Every value of the SSL flag but zero means on, and SSL is then switched on once with true.
--FILE--
<?php
include 'scripted_platform.inc';
answer('gethostname', 'library');
answer(IPV4 . '-n library-8', exits(0));
answer('IMgmtAppConfig.setSSLEnabled', 'Succeeded');
foreach (array('0', '1', '2', '0x100', '0x80000000', '0xFFFFFFFF') as $flag) {
  answer('IMgmtAppConfig.getSSLEnabled', 'Succeeded', $flag);
  set_network_hostname(new Session(), 'library-8');
}
show_lines('/SSLEnabled/');
--EXPECT--
IMgmtAppConfig.getSSLEnabled() -> Succeeded 0
IMgmtAppConfig.getSSLEnabled() -> Succeeded 1
IMgmtAppConfig.setSSLEnabled(true) -> Succeeded
IMgmtAppConfig.getSSLEnabled() -> Succeeded 2
IMgmtAppConfig.setSSLEnabled(true) -> Succeeded
IMgmtAppConfig.getSSLEnabled() -> Succeeded 0x100
IMgmtAppConfig.setSSLEnabled(true) -> Succeeded
IMgmtAppConfig.getSSLEnabled() -> Succeeded 0x80000000
IMgmtAppConfig.setSSLEnabled(true) -> Succeeded
IMgmtAppConfig.getSSLEnabled() -> Succeeded 0xFFFFFFFF
IMgmtAppConfig.setSSLEnabled(true) -> Succeeded
