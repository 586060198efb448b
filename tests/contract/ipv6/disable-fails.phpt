--TEST--
A failure to remove the flag file is reported, whatever ended the command.
--FILE--
<?php
include 'scripted_platform.inc';
append_to(IPV6_ENABLED_FILE, '');
foreach (array(exits(1), killed_by(15), -1) as $result) {
  answer(WRAPPER . '/bin/rm ' . IPV6_ENABLED_FILE, $result);
  show(set_ipv6_enabled(new Session(), false));
  show_transcript();
}
--EXPECT--
null
TRACE[time]:Entering set_ipv6_enabled:<>
run: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/rm /home/embedded/library/CoreService/dat/ipv6Enabled
report: Failed "Failed to disable IPv6." http/src/network
TRACE[time]:Exiting set_ipv6_enabled:<>
null
TRACE[time]:Entering set_ipv6_enabled:<>
run: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/rm /home/embedded/library/CoreService/dat/ipv6Enabled
report: Failed "Failed to disable IPv6." http/src/network
TRACE[time]:Exiting set_ipv6_enabled:<>
null
TRACE[time]:Entering set_ipv6_enabled:<>
run: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/rm /home/embedded/library/CoreService/dat/ipv6Enabled
report: Failed "Failed to disable IPv6." http/src/network
TRACE[time]:Exiting set_ipv6_enabled:<>
