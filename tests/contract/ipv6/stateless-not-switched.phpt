--TEST--
A failure to switch stateless addressing is reported with the general code, in either direction.
--FILE--
<?php
include 'scripted_platform.inc';
foreach (array(exits(1), killed_by(9), -1) as $result) {
  answer(IPV6 . '-L 1', $result);
  answer(IPV6 . '-L 0', $result);
  show(set_stateless_enabled(new Session(), true));
  show(set_stateless_enabled(new Session(), false));
  show_transcript();
}
--EXPECT--
null
null
TRACE[time]:Entering set_stateless_enabled:<>
TRACE[time]:Stateless is being ENABLED:<>
run: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv6Manager.sh -L 1
report: Failed "Failed to configure stateless settings." http/src/network
TRACE[time]:Exiting set_stateless_enabled:<>
TRACE[time]:Entering set_stateless_enabled:<>
TRACE[time]:Stateless is being DISABLED:<>
run: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv6Manager.sh -L 0
report: Failed "Failed to configure stateless settings." http/src/network
TRACE[time]:Exiting set_stateless_enabled:<>
null
null
TRACE[time]:Entering set_stateless_enabled:<>
TRACE[time]:Stateless is being ENABLED:<>
run: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv6Manager.sh -L 1
report: Failed "Failed to configure stateless settings." http/src/network
TRACE[time]:Exiting set_stateless_enabled:<>
TRACE[time]:Entering set_stateless_enabled:<>
TRACE[time]:Stateless is being DISABLED:<>
run: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv6Manager.sh -L 0
report: Failed "Failed to configure stateless settings." http/src/network
TRACE[time]:Exiting set_stateless_enabled:<>
null
null
TRACE[time]:Entering set_stateless_enabled:<>
TRACE[time]:Stateless is being ENABLED:<>
run: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv6Manager.sh -L 1
report: Failed "Failed to configure stateless settings." http/src/network
TRACE[time]:Exiting set_stateless_enabled:<>
TRACE[time]:Entering set_stateless_enabled:<>
TRACE[time]:Stateless is being DISABLED:<>
run: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv6Manager.sh -L 0
report: Failed "Failed to configure stateless settings." http/src/network
TRACE[time]:Exiting set_stateless_enabled:<>
