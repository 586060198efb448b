--TEST--
A worker ends without a result, whether its change succeeded or failed.
--FILE--
<?php
include 'scripted_platform.inc';
answer('results of threads', 'shown');
answer('gethostname', 'library');
foreach (array(0, 1) as $status) {
  answer(IPV4 . '-c -s 10.0.0.5?255.0.0.0?10.0.0.1', exits($status));
  answer(IPV6 . '-c -s 2001:db8::10/64?2001:db8::1', exits($status));
  set_network_configuration_ipv4(new Session(), new Ipv4Settings());
  run_thread();
  set_network_configuration_ipv6(new Session(), new Ipv6Settings());
  run_thread();
  show_lines('/^thread (set|ended)|Leaving/');
}
--EXPECT--
thread set_network_ipv4: created
TRACE[time]:Leaving set_network_ipv4:<>
thread ended
thread set_network_ipv6: created
TRACE[time]:Leaving set_network_ipv6:<>
thread ended
thread set_network_ipv4: created
thread ended
thread set_network_ipv6: created
thread ended
