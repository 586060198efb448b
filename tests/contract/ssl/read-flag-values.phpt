--TEST--
Every value of the 32-bit flag but zero means on.
--FILE--
<?php
include 'scripted_platform.inc';
foreach (array('0', '1', '2', '0x100', '0x10000', '0x80000000', '0xFFFFFFFF') as $flag) {
  answer('IMgmtAppConfig.getSSLEnabled', 'Succeeded', $flag);
  show(get_ssl_settings(new Session()));
}
--EXPECT--
stdClass {isEnabled: false, port: integer 443, cipher: "RSA"}
stdClass {isEnabled: true, port: integer 443, cipher: "RSA"}
stdClass {isEnabled: true, port: integer 443, cipher: "RSA"}
stdClass {isEnabled: true, port: integer 443, cipher: "RSA"}
stdClass {isEnabled: true, port: integer 443, cipher: "RSA"}
stdClass {isEnabled: true, port: integer 443, cipher: "RSA"}
stdClass {isEnabled: true, port: integer 443, cipher: "RSA"}
