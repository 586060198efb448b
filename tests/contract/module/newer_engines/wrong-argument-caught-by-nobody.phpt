--TEST--
A wrong argument is no exception: nothing is there to be caught.
--FILE--
<?php
include 'scripted_platform.inc';
try {
  show(set_network_hostname('admin', 'library-8'));
  echo "went on\n";
} catch (Throwable $thrown) {
  echo get_class($thrown), "\n";
}
--EXPECT--
null
went on
