--TEST--
A script finds a boolean, an integer and a string property of a result under the plain name, without a NUL behind it.
--FILE--
<?php
include 'scripted_platform.inc';
answer('IMgmtAppConfig.getSSLEnabled', 'Succeeded', 1);
$settings = get_ssl_settings(new Session());
show(isset($settings->isEnabled));
show(isset($settings->port));
show(isset($settings->cipher));
foreach (get_object_vars($settings) as $name => $value) {
  echo $name, ': ', strlen($name), ' characters, ', gettype($value), "\n";
}
--EXPECT--
true
true
true
isEnabled: 9 characters, boolean
port: 4 characters, integer
cipher: 6 characters, string
