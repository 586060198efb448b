--TEST--
A page whose error handler throws when something is reported gets its own exception, the first; the call goes on to its end all the same.
--PLATFORM--
development
--FILE--
<?php
include 'scripted_platform.inc';
function throw_warning($level, $message) {
  echo "handler called\n";
  throw new ErrorException($message, 0, $level);
}
set_error_handler('throw_warning');
write_script(IPV4_SCRIPT, '[ "$*" != "-d status" ] || echo "??"; exit 1');
$settings = 'unchanged';
try {
  $settings = get_network_configuration_ipv4(new Session());
  echo "went on\n";
} catch (ErrorException $caught) {
  echo $caught->getSeverity() === E_WARNING ? 'E_WARNING: ' : 'another level: ';
  echo preg_replace('/:\d+\)$/', ')', $caught->getMessage()), "\n";
  show($caught->getPrevious());
}
show($settings);
show_transcript();
--EXPECT--
handler called
E_WARNING: get_network_configuration_ipv4(): Could not get IPv4 network information (code 0x00000001, http/src/network)
null
"unchanged"
TRACE[time]:Entering get_network_configuration_ipv4:<>
TRACE[time]:Output1 = :<??>
TRACE[time]:Output2 = :<>
TRACE[time]:Could not get IPv4 network information, lets return zero's for IP settings.:<>
TRACE[time]:Output3 = :<>
TRACE[time]:Exiting get_network_configuration_ipv4:<>
