--TEST--
True carries "1", a number its decimal text, any non-empty text itself.
--FILE--
<?php
include 'scripted_platform.inc';
class AnyUser {
  var $user;
}
answer('gethostname', 'library');
$session = new AnyUser();
foreach (array('admin', '0', 'false', ' ', "\xC3\xBC", true, 1, -7, 2147483647, 0.5, -1.25, 1000000.0) as $value) {
  $session->user = $value;
  set_network_hostname($session, 'library');
  preg_match('/^session of .*/m', transcript(), $line);
  echo text_of($value), ' -> ', $line[0], "\n";
  forget_transcript();
}
--EXPECT--
"admin" -> session of "admin"
"0" -> session of "0"
"false" -> session of "false"
" " -> session of " "
"\303\274" -> session of "\xC3\xBC"
true -> session of "1"
integer 1 -> session of "1"
integer -7 -> session of "-7"
integer 2147483647 -> session of "2147483647"
double 0.5 -> session of "0.5"
double -1.25 -> session of "-1.25"
double 1000000 -> session of "1000000"
