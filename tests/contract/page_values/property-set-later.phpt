--TEST--
A property that the page has added to a plain object is found.
--FILE--
<?php
include 'scripted_platform.inc';
answer('gethostname', 'library');
$session = new stdClass();
set_network_hostname($session, 'library');
$session->user = 'operator';
set_network_hostname($session, 'library');
unset($session->user);
set_network_hostname($session, 'library');
show_lines('/^session/');
--EXPECT--
session of nobody
session of "operator"
session of nobody
