--TEST--
A page whose error handler throws gets its own exception for a wrong argument.
--FILE--
<?php
function throw_warning($level, $message) {
  throw new ErrorException($message, 0, $level);
}
set_error_handler('throw_warning');
try {
  set_network_hostname('admin', 'library-8');
  echo "went on\n";
} catch (ErrorException $caught) {
  echo $caught->getSeverity() === E_WARNING ? 'E_WARNING: ' : 'another level: ', $caught->getMessage(), "\n";
}
--EXPECT--
E_WARNING: set_network_hostname(): Argument #1 ($session) must be of type object, string given
