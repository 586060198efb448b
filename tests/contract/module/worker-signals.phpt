--TEST--
A worker starts with the signals of the interpreter's timers blocked, and the calling thread has its own mask back, also when there is no thread to be had.
--FILE--
<?php
include 'scripted_platform.inc';

function blocked_signals() {
  preg_match('/^SigBlk:\s*(\w+)$/m', implode('', file('/proc/self/status')), $mask);
  return $mask[1];
}

answer('gethostname', 'library');
answer(IPV4 . '-c -s 10.0.0.5?255.0.0.0?10.0.0.1', exits(0));
answer(IPV6 . '-c -s 2001:db8::10/64?2001:db8::1', exits(0));
$before = blocked_signals();
set_network_configuration_ipv4(new Session(), new Ipv4Settings());
show(blocked_signals() === $before);
set_network_configuration_ipv6(new Session(), new Ipv6Settings());
show(blocked_signals() === $before);
run_threads(2);
answer('pthread_create', 11);
set_network_configuration_ipv4(new Session(), new Ipv4Settings());
show(blocked_signals() === $before);
show_lines('/^thread set/');
--EXPECT--
true
true
true
thread set_network_ipv4: created
thread set_network_ipv6: created
thread set_network_ipv4: refused
