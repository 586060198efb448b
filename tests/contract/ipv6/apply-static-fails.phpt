--TEST--
When the static address cannot be set, the trace carries the script's result, and neither a report nor the lines of success follow.
--FILE--
<?php
include 'scripted_platform.inc';
foreach (array(exits(2), exits(255), killed_by(9), -1) as $result) {
  answer(IPV6 . '-c -s 2001:db8::10/64?2001:db8::1', $result);
  set_network_configuration_ipv6(new Session(), new Ipv6Settings());
  forget_transcript();
  run_thread();
  show_transcript();
}
--EXPECT--
TRACE[time]:Entering set_network_ipv6:<>
TRACE[time]:Entering setIPv6StaticIP(), address::<2001:db8::10/64?2001:db8::1>
run: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv6Manager.sh -c -s 2001:db8::10/64?2001:db8::1
TRACE[time]:Failed to enable static IPv6 address: :<512>
TRACE[time]:Entering set_network_ipv6:<>
TRACE[time]:Entering setIPv6StaticIP(), address::<2001:db8::10/64?2001:db8::1>
run: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv6Manager.sh -c -s 2001:db8::10/64?2001:db8::1
TRACE[time]:Failed to enable static IPv6 address: :<65280>
TRACE[time]:Entering set_network_ipv6:<>
TRACE[time]:Entering setIPv6StaticIP(), address::<2001:db8::10/64?2001:db8::1>
run: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv6Manager.sh -c -s 2001:db8::10/64?2001:db8::1
TRACE[time]:Failed to enable static IPv6 address: :<9>
TRACE[time]:Entering set_network_ipv6:<>
TRACE[time]:Entering setIPv6StaticIP(), address::<2001:db8::10/64?2001:db8::1>
run: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv6Manager.sh -c -s 2001:db8::10/64?2001:db8::1
TRACE[time]:Failed to enable static IPv6 address: :<-1>
