--TEST--
An exception out of the page's own code, which runs while an argument is turned into a text, stays an exception, of whatever class.
--FILE--
<?php
include 'scripted_platform.inc';
class Name {
  var $thrown;
  function __toString() {
    throw $this->thrown;
  }
}
$name = new Name();
foreach (array(new RuntimeException('no name'), new TypeError('no name'), new ArgumentCountError('no name')) as $thrown) {
  $name->thrown = $thrown;
  try {
    set_network_hostname(new Session(), $name);
    echo "went on\n";
  } catch (Throwable $caught) {
    echo $caught === $thrown ? 'the same ' : 'another ', get_class($caught), "\n";
  }
}
show_transcript();
--EXPECT--
the same RuntimeException
the same TypeError
the same ArgumentCountError
TRACE[time]:Entering set_network_hostname:<>
TRACE[time]:Entering set_network_hostname:<>
TRACE[time]:Entering set_network_hostname:<>
