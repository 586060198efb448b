--TEST--
A number that is too large or too small for plain digits carries the text that today's engines make of it.
--FILE--
<?php
include 'scripted_platform.inc';
class AnyUser {
  var $user;
}
answer('gethostname', 'library');
$session = new AnyUser();
foreach (array(1e14, 123456789012345678.0, 1e25, -1.5e25, 0.0001, 0.00001, 1.25e-10) as $value) {
  $session->user = $value;
  set_network_hostname($session, 'library');
  preg_match('/^session of .*/m', transcript(), $line);
  echo $line[0], "\n";
  forget_transcript();
}
--EXPECT--
session of "1.0E+14"
session of "1.2345678901235E+17"
session of "1.0E+25"
session of "-1.5E+25"
session of "0.0001"
session of "1.0E-5"
session of "1.25E-10"
