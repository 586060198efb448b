--TEST--
A property that is missing, null, false, the empty text, zero, an array or an object carries no text.
--FILE--
<?php
include 'scripted_platform.inc';
class no_user {
  var $name = 'admin';
}
class any_user {
  var $user;
}
answer('gethostname', 'library');

function attach($session) {
  set_network_hostname($session, 'library');
  preg_match('/^session of .*/m', transcript(), $line);
  echo text_of($session), ' -> ', $line[0], "\n";
  forget_transcript();
}

attach(new no_user());
$session = new any_user();
foreach (array(null, false, '', 0, 0.0, 0.0 * -1, array(), array('admin'), new no_user()) as $value) {
  $session->user = $value;
  attach($session);
}
--EXPECT--
no_user {name: "admin"} -> session of nobody
any_user {user: null} -> session of nobody
any_user {user: false} -> session of nobody
any_user {user: ""} -> session of nobody
any_user {user: integer 0} -> session of nobody
any_user {user: double 0} -> session of nobody
any_user {user: double -0} -> session of nobody
any_user {user: array()} -> session of nobody
any_user {user: array(0: "admin")} -> session of nobody
any_user {user: no_user {name: "admin"}} -> session of nobody
