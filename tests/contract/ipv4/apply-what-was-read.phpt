--TEST--
The object that was read can be applied as it is: static settings stay static, and DHCP stays on.
--FILE--
<?php
include 'scripted_platform.inc';
answer('gethostname', 'library');
answer(IPV4 . '-g host', exits(0), 'library');
answer(IPV4 . '-d status', exits(0), '??');
answer(IPV4 . '-g static', exits(0), '10.1.1.5?255.255.0.0?10.1.0.1');
answer(IPV4 . '-c -s 10.1.1.5?255.255.0.0?10.1.0.1', exits(0));
set_network_configuration_ipv4(new Session(), get_network_configuration_ipv4(new Session()));
run_thread();
answer(IPV4 . '-d status', exits(0), '10.1.1.9?255.255.255.0?10.1.1.1');
answer(IPV4 . '-c -d on', exits(0));
set_network_configuration_ipv4(new Session(), get_network_configuration_ipv4(new Session()));
run_thread();
show_lines('/^run|Leaving/');
--EXPECT--
run: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv4Manager.sh -c -s 10.1.1.5?255.255.0.0?10.1.0.1
TRACE[time]:Leaving set_network_ipv4:<>
run: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv4Manager.sh -c -d on
TRACE[time]:Leaving set_network_ipv4:<>
