--TEST--
The object that was read can be applied as it is: a static address stays, in its long form, and where there was none it is removed.
--FILE--
<?php
include 'scripted_platform.inc';
answer(IPV6 . '-g static', exits(0), '2001:db8::10/64?2001:db8::1');
answer(IPV6 . '-c -s 2001:db8:0:0:0:0:0:10/64?2001:db8:0:0:0:0:0:1', exits(0));
set_network_configuration_ipv6(new Session(), get_network_configuration_ipv6(new Session()));
run_thread();
answer(IPV6 . '-g static', exits(0), '');
answer(IPV6 . '-r ', exits(0));
set_network_configuration_ipv6(new Session(), get_network_configuration_ipv6(new Session()));
run_thread();
show_lines('/^run|Leaving/');
--EXPECT--
run: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv6Manager.sh -c -s 2001:db8:0:0:0:0:0:10/64?2001:db8:0:0:0:0:0:1
TRACE[time]:Leaving set_network_ipv6:<>
run: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv6Manager.sh -r
TRACE[time]:Leaving set_network_ipv6:<>
