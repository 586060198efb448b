--TEST--
When the static address cannot be removed, the trace carries the script's result, and neither a report nor the lines of success follow.
--FILE--
<?php
include 'scripted_platform.inc';
$settings = new Ipv6Settings();
$settings->staticEnabled = false;
foreach (array(exits(1), killed_by(15), -1) as $result) {
  answer(IPV6 . '-r ', $result);
  set_network_configuration_ipv6(new Session(), $settings);
  forget_transcript();
  run_thread();
  show_transcript();
}
--EXPECT--
TRACE[time]:Entering set_network_ipv6:<>
TRACE[time]:Disabling IPv6 Static addresses:<>
run: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv6Manager.sh -r
TRACE[time]:Failed to disable static IPv6 address: :<256>
TRACE[time]:Entering set_network_ipv6:<>
TRACE[time]:Disabling IPv6 Static addresses:<>
run: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv6Manager.sh -r
TRACE[time]:Failed to disable static IPv6 address: :<15>
TRACE[time]:Entering set_network_ipv6:<>
TRACE[time]:Disabling IPv6 Static addresses:<>
run: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv6Manager.sh -r
TRACE[time]:Failed to disable static IPv6 address: :<-1>
