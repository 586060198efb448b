--TEST--
The wanted state is a truth value as the engine understands one, and becomes "1" or "0" whatever it was.
--FILE--
<?php
include 'scripted_platform.inc';
answer(IPV6 . '-L 1', exits(0));
answer(IPV6 . '-L 0', exits(0));
foreach (array(7, 256, 'off', '0', '', 0.0) as $state) set_stateless_enabled(new Session(), $state);
show_lines('/^run/');
--EXPECT--
run: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv6Manager.sh -L 1
run: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv6Manager.sh -L 1
run: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv6Manager.sh -L 1
run: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv6Manager.sh -L 0
run: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv6Manager.sh -L 0
run: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv6Manager.sh -L 0
