--TEST--
The function has returned null before the worker does its first step, and the worker first waits three seconds.
--FILE--
<?php
include 'scripted_platform.inc';
answer('gethostname', 'library');
answer(IPV4 . '-c -s 10.0.0.5?255.0.0.0?10.0.0.1', exits(0));
show(set_network_configuration_ipv4(new Session(), new Ipv4Settings()));
show_transcript();
echo "the page goes on\n";
run_thread();
show_transcript();
--EXPECT--
null
TRACE[time]:Entering set_network_configuration_ipv4:<>
thread handle taken
session of "admin"
TRACE[time]:Firing off the thread to Set Network settings:<>
thread set_network_ipv4: created
thread detached
TRACE[time]:Exiting set_network_configuration_ipv4:<>
thread handle released
the page goes on
TRACE[time]:Entering set_network_ipv4:<>
usleep: 3000000
gethostname: into 64 bytes
run: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv4Manager.sh -c -s 10.0.0.5?255.0.0.0?10.0.0.1
TRACE[time]:Leaving set_network_ipv4:<>
