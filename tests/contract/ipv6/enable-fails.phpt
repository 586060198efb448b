--TEST--
A failure to touch the flag file is reported, whatever ended the command.
--FILE--
<?php
include 'scripted_platform.inc';
foreach (array(exits(1), killed_by(9), -1) as $result) {
  answer(WRAPPER . '/bin/touch ' . IPV6_ENABLED_FILE, $result);
  show(set_ipv6_enabled(new Session(), true));
  show_transcript();
}
--EXPECT--
null
TRACE[time]:Entering set_ipv6_enabled:<>
run: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/touch /home/embedded/library/CoreService/dat/ipv6Enabled
report: Failed "Failed to enable IPv6." http/src/network
TRACE[time]:Exiting set_ipv6_enabled:<>
null
TRACE[time]:Entering set_ipv6_enabled:<>
run: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/touch /home/embedded/library/CoreService/dat/ipv6Enabled
report: Failed "Failed to enable IPv6." http/src/network
TRACE[time]:Exiting set_ipv6_enabled:<>
null
TRACE[time]:Entering set_ipv6_enabled:<>
run: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/touch /home/embedded/library/CoreService/dat/ipv6Enabled
report: Failed "Failed to enable IPv6." http/src/network
TRACE[time]:Exiting set_ipv6_enabled:<>
