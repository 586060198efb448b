--TEST--
After a refused thread the next call is as good as any.
--FILE--
<?php
include 'scripted_platform.inc';
answer('gethostname', 'library');
answer(IPV4 . '-c -s 10.0.0.6?255.0.0.0?10.0.0.1', exits(0));
$settings = new Ipv4Settings();
answer('pthread_create', 12);
set_network_configuration_ipv4(new Session(), $settings);
fclose(fopen(platform_file('answers'), 'w'));
answer('gethostname', 'library');
answer(IPV4 . '-c -s 10.0.0.6?255.0.0.0?10.0.0.1', exits(0));
$settings->ip = '10.0.0.6';
set_network_configuration_ipv4(new Session(), $settings);
run_thread();
show_lines('/^(thread set|thread detached|report|run)|Leaving/');
--EXPECT--
thread set_network_ipv4: refused
report: Failed "Could not create thread to set network settings" http/src/network
thread set_network_ipv4: created
thread detached
run: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv4Manager.sh -c -s 10.0.0.6?255.0.0.0?10.0.0.1
TRACE[time]:Leaving set_network_ipv4:<>
