--TEST--
The wanted state is a truth value as the engine understands one: the text "FALSE" is true, "0" and the empty text are not.
--FILE--
<?php
include 'scripted_platform.inc';
append_to(IPV6_ENABLED_FILE, '');
answer(WRAPPER . '/bin/touch ' . IPV6_ENABLED_FILE, exits(0));
answer(WRAPPER . '/bin/rm ' . IPV6_ENABLED_FILE, exits(0));
foreach (array(true, 1, -1, 256, 0.5, '1', 'off', 'FALSE', ' ') as $state) set_ipv6_enabled(new Session(), $state);
show_lines('/^run/');
echo "\n";
foreach (array(false, 0, 0.0, '', '0') as $state) set_ipv6_enabled(new Session(), $state);
show_lines('/^run/');
--EXPECT--
run: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/touch /home/embedded/library/CoreService/dat/ipv6Enabled
run: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/touch /home/embedded/library/CoreService/dat/ipv6Enabled
run: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/touch /home/embedded/library/CoreService/dat/ipv6Enabled
run: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/touch /home/embedded/library/CoreService/dat/ipv6Enabled
run: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/touch /home/embedded/library/CoreService/dat/ipv6Enabled
run: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/touch /home/embedded/library/CoreService/dat/ipv6Enabled
run: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/touch /home/embedded/library/CoreService/dat/ipv6Enabled
run: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/touch /home/embedded/library/CoreService/dat/ipv6Enabled
run: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/touch /home/embedded/library/CoreService/dat/ipv6Enabled

run: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/rm /home/embedded/library/CoreService/dat/ipv6Enabled
run: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/rm /home/embedded/library/CoreService/dat/ipv6Enabled
run: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/rm /home/embedded/library/CoreService/dat/ipv6Enabled
run: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/rm /home/embedded/library/CoreService/dat/ipv6Enabled
run: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/rm /home/embedded/library/CoreService/dat/ipv6Enabled
