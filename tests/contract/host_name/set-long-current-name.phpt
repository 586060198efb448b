--TEST--
A current name of 63 or more characters is compared as the 64-byte buffer holds it: 64 characters fill it, of a longer name it has the first 64.
--FILE--
<?php
include 'scripted_platform.inc';
answer('IMgmtAppConfig.getSSLEnabled', 'Succeeded', 0);

function set_changes($current, $name) {
  answer('gethostname', $current);
  answer(IPV4 . '-n ' . $name, exits(0));
  forget_transcript();
  set_network_hostname(new Session(), $name);
  return preg_match('/^run: /m', transcript());
}

foreach (array(62, 63, 64, 65, 70, 200) as $length) {
  $current = str_repeat('n', $length);
  echo "current name of $length:";
  foreach (array(62, 63, 64, 65, 70, 200) as $wanted) {
    echo set_changes($current, str_repeat('n', $wanted)) ? ' new' : ' same';
  }
  echo "\n";
}
--EXPECT--
current name of 62: same new new new new new
current name of 63: new same new new new new
current name of 64: new new same new new new
current name of 65: new new same new new new
current name of 70: new new same new new new
current name of 200: new new same new new new
