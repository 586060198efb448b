--TEST--
A property that refers to a variable carries what the variable holds.
--FILE--
<?php
include 'scripted_platform.inc';
answer('gethostname', 'library');
$session = new Session();
$name = 'first';
$session->user = &$name;
set_network_hostname($session, 'library');
$name = 'second';
set_network_hostname($session, 'library');
show_lines('/^session/');
--EXPECT--
session of "first"
session of "second"
