--TEST--
The wanted mode is on when the value is true to the engine.
--FILE--
<?php
include 'scripted_platform.inc';
answer('IMgmtAppConfig.getSSLEnabled', 'Succeeded', 2);
answer('IMgmtAppConfig.setSSLEnabled', 'Succeeded');
foreach (array(true, 1, -1, 256, 0.5, '1', 'on', 'false', false, 0, 0.0, '', '0') as $value) {
  set_ssl_settings(new Session(), $value);
  echo text_of($value), "\n";
  show_lines('/(Setting SSL to|setSSLEnabled)/');
}
--EXPECT--
true
Setting SSL to :<Enabled>
IMgmtAppConfig.setSSLEnabled(true) -> Succeeded
integer 1
Setting SSL to :<Enabled>
IMgmtAppConfig.setSSLEnabled(true) -> Succeeded
integer -1
Setting SSL to :<Enabled>
IMgmtAppConfig.setSSLEnabled(true) -> Succeeded
integer 256
Setting SSL to :<Enabled>
IMgmtAppConfig.setSSLEnabled(true) -> Succeeded
double 0.5
Setting SSL to :<Enabled>
IMgmtAppConfig.setSSLEnabled(true) -> Succeeded
"1"
Setting SSL to :<Enabled>
IMgmtAppConfig.setSSLEnabled(true) -> Succeeded
"on"
Setting SSL to :<Enabled>
IMgmtAppConfig.setSSLEnabled(true) -> Succeeded
"false"
Setting SSL to :<Enabled>
IMgmtAppConfig.setSSLEnabled(true) -> Succeeded
false
Setting SSL to :<Disabled>
IMgmtAppConfig.setSSLEnabled(false) -> Succeeded
integer 0
Setting SSL to :<Disabled>
IMgmtAppConfig.setSSLEnabled(false) -> Succeeded
double 0
Setting SSL to :<Disabled>
IMgmtAppConfig.setSSLEnabled(false) -> Succeeded
""
Setting SSL to :<Disabled>
IMgmtAppConfig.setSSLEnabled(false) -> Succeeded
"0"
Setting SSL to :<Disabled>
IMgmtAppConfig.setSSLEnabled(false) -> Succeeded
