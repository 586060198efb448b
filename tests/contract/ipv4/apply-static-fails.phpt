--TEST--
When the static settings cannot be set, the worker traces that and ends without a report and without its last line.
--FILE--
<?php
include 'scripted_platform.inc';
answer('gethostname', 'library');
answer(IPV4 . '-c -s 10.0.0.5?255.0.0.0?10.0.0.1', exits(2));
show(set_network_configuration_ipv4(new Session(), new Ipv4Settings()));
forget_transcript();
run_thread();
show_transcript();
--EXPECT--
null
TRACE[time]:Entering set_network_ipv4:<>
usleep: 3000000
gethostname: into 64 bytes
run: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv4Manager.sh -c -s 10.0.0.5?255.0.0.0?10.0.0.1
TRACE[time]:Could not set network settings (dhcp off).:<0>
