--TEST--
Neither the session object nor the name is changed by a call.
--FILE--
<?php
include 'scripted_platform.inc';
answer('gethostname', 'library');
answer(IPV4 . '-n library-8', exits(0));
answer('IMgmtAppConfig.getSSLEnabled', 'Succeeded', 0);
class page_session {
  var $user = 'admin';
  var $page = 7;
}
$session = new page_session();
$name = 'library-8';
set_network_hostname($session, $name);
show($session);
show($name);
--EXPECT--
page_session {user: "admin", page: integer 7}
"library-8"
