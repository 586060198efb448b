--TEST--
A failure is reported; what the script printed is not traced.
--FILE--
<?php
include 'scripted_platform.inc';
foreach (array(exits(2), killed_by(9), -1) as $result) {
  answer(IPV4 . '-P on?100?full', $result, 'no such interface');
  show(set_eth2_port_settings(new Session(), 1, 100, 1));
  show_transcript();
}
--EXPECT--
null
TRACE[time]:Entering set_eth2_port_settings:<>
TRACE[time]:Autonegotiate Input Parameter: :<1>
TRACE[time]:Duplex Input Parameter: :<1>
TRACE[time]:Command Line: :</usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv4Manager.sh -P on?100?full>
read: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv4Manager.sh -P on?100?full
report: Failed "Failed to set port settings." http/src/network
TRACE[time]:Exiting set_eth2_port_settings:<>
null
TRACE[time]:Entering set_eth2_port_settings:<>
TRACE[time]:Autonegotiate Input Parameter: :<1>
TRACE[time]:Duplex Input Parameter: :<1>
TRACE[time]:Command Line: :</usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv4Manager.sh -P on?100?full>
read: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv4Manager.sh -P on?100?full
report: Failed "Failed to set port settings." http/src/network
TRACE[time]:Exiting set_eth2_port_settings:<>
null
TRACE[time]:Entering set_eth2_port_settings:<>
TRACE[time]:Autonegotiate Input Parameter: :<1>
TRACE[time]:Duplex Input Parameter: :<1>
TRACE[time]:Command Line: :</usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv4Manager.sh -P on?100?full>
read: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv4Manager.sh -P on?100?full
report: Failed "Failed to set port settings." http/src/network
TRACE[time]:Exiting set_eth2_port_settings:<>
