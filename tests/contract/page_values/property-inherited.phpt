--TEST--
A property that a class inherits is found like one of its own.
--FILE--
<?php
include 'scripted_platform.inc';
class Child extends Session {
  var $page = 'network';
}
answer('gethostname', 'library');
set_network_hostname(new Child(), 'library');
show_lines('/^session/');
--EXPECT--
session of "admin"
