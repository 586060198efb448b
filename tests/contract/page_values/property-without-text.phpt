--TEST--
A property that is missing, null, false, the empty text, zero, an array or an object carries no text.
--FILE--
<?php
include 'scripted_platform.inc';
class NoUser {
  var $name = 'admin';
}
class AnyUser {
  var $user;
}
answer('gethostname', 'library');

function attach($session) {
  set_network_hostname($session, 'library');
  preg_match('/^session of .*/m', transcript(), $line);
  echo text_of($session), ' -> ', $line[0], "\n";
  forget_transcript();
}

attach(new NoUser());
$session = new AnyUser();
foreach (array(null, false, '', 0, 0.0, -0.0, array(), array('admin'), new NoUser()) as $value) {
  $session->user = $value;
  attach($session);
}
--EXPECT--
NoUser {name: "admin"} -> session of nobody
AnyUser {user: null} -> session of nobody
AnyUser {user: false} -> session of nobody
AnyUser {user: ""} -> session of nobody
AnyUser {user: integer 0} -> session of nobody
AnyUser {user: double 0} -> session of nobody
AnyUser {user: double -0} -> session of nobody
AnyUser {user: array()} -> session of nobody
AnyUser {user: array(0: "admin")} -> session of nobody
AnyUser {user: NoUser {name: "admin"}} -> session of nobody
