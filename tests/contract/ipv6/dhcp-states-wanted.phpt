--TEST--
The wanted state is a truth value as the engine understands one, and becomes "on" or "off" whatever it was.
--FILE--
<?php
include 'scripted_platform.inc';
answer(IPV6 . '-c -d on', exits(0));
answer(IPV6 . '-c -d off', exits(0));
foreach (array(7, 256, 'off', '0', '', 0.0) as $state) set_ipv6_dhcp_enabled(new Session(), $state);
show_lines('/^run/');
--EXPECT--
run: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv6Manager.sh -c -d on
run: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv6Manager.sh -c -d on
run: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv6Manager.sh -c -d on
run: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv6Manager.sh -c -d off
run: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv6Manager.sh -c -d off
run: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv6Manager.sh -c -d off
