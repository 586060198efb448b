--TEST--
The workers of the IPv4 and the IPv6 function go their ways side by side.
--FILE--
<?php
include 'scripted_platform.inc';
answer('gethostname', 'library');
answer(IPV4 . '-c -s 10.0.0.5?255.0.0.0?10.0.0.1', exits(0));
answer(IPV6 . '-c -s 2001:db8::10/64?2001:db8::1', exits(0));
set_network_configuration_ipv4(new Session(), new Ipv4Settings());
set_network_configuration_ipv6(new Session(), new Ipv6Settings());
forget_transcript();
run_threads(2);
$lines = preg_grep('/^run|Leaving/', explode("\n", masked_transcript()));
sort($lines);
echo implode("\n", $lines), "\n";
--EXPECT--
TRACE[time]:Leaving set_network_ipv4:<>
TRACE[time]:Leaving set_network_ipv6:<>
run: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv4Manager.sh -c -s 10.0.0.5?255.0.0.0?10.0.0.1
run: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv6Manager.sh -c -s 2001:db8::10/64?2001:db8::1
