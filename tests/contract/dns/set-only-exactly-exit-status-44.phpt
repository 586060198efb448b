--TEST--
No other result has the code of an internal address: no neighbour of 44, and no signal.
--FILE--
<?php
include 'scripted_platform.inc';
class Servers {
  var $dnsPrimary = '10.1.1.1';
  var $dnsSecondary = '10.1.1.2';
}
foreach (array(exits(43), exits(44), exits(45), exits(1), exits(255), killed_by(44), killed_by(9), exits(44) + 9, -1) as $result) {
  answer(IPV6 . '-D "10.1.1.1 10.1.1.2"', $result, '');
  set_network_dns(new Session(), new Servers());
}
show_lines('/^report|returnCode/');
--EXPECT--
TRACE[time]:returnCode = :<11008>
report: Failed "Failed to set DNS addresses." http/src/network
TRACE[time]:returnCode = :<11264>
report: 0x00050040 "Failed to set DNS addresses." http/src/network
TRACE[time]:returnCode = :<11520>
report: Failed "Failed to set DNS addresses." http/src/network
TRACE[time]:returnCode = :<256>
report: Failed "Failed to set DNS addresses." http/src/network
TRACE[time]:returnCode = :<65280>
report: Failed "Failed to set DNS addresses." http/src/network
TRACE[time]:returnCode = :<44>
report: Failed "Failed to set DNS addresses." http/src/network
TRACE[time]:returnCode = :<9>
report: Failed "Failed to set DNS addresses." http/src/network
TRACE[time]:returnCode = :<11273>
report: Failed "Failed to set DNS addresses." http/src/network
TRACE[time]:returnCode = :<-1>
report: Failed "Failed to set DNS addresses." http/src/network
