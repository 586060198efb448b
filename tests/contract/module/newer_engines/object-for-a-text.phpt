--TEST--
An object that can be turned into a text is accepted as one.
--FILE--
<?php
include 'scripted_platform.inc';
class Name {
  function __toString() {
    return 'library';
  }
}
answer('gethostname', 'library');
show(set_network_hostname(new Session(), new Name()));
show_transcript();
--EXPECT--
null
TRACE[time]:Entering set_network_hostname:<>
thread handle taken
session of "admin"
gethostname: into 64 bytes
TRACE[time]:Exiting set_network_hostname:<>
thread handle released
