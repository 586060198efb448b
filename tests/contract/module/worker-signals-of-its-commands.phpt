--TEST--
A command that a worker starts has only the signals of the interpreter's timers blocked besides those of the page, also when the runner does nothing about it: what the command starts can be ended.
--FILE--
<?php
include 'scripted_platform.inc';

// By number: the bit of signal N is N - 1, and the lowest bits stand last.
function blocked_signals($status) {
  preg_match('/^SigBlk:\s*(\w+)$/m', $status, $mask);
  $digits = strrev($mask[1]);
  $signals = array();
  for ($position = 0; $position < strlen($digits); ++$position) {
    for ($bit = 0; $bit < 4; ++$bit) {
      if (hexdec(substr($digits, $position, 1)) & (1 << $bit)) $signals[] = 4 * $position + $bit + 1;
    }
  }
  return $signals;
}

function show_signals_of_command() {
  $pages = blocked_signals(implode('', file('/proc/self/status')));
  run_thread();
  echo implode(' ', array_diff(blocked_signals(transcript()), $pages)), "\n";
  forget_transcript();
}

// The alarm is signal 14, the timer of used time 26, the profiling timer 27.
answer('beside each command', 'grep SigBlk /proc/self/status');
answer('gethostname', 'library');
answer(IPV4 . '-c -s 10.0.0.5?255.0.0.0?10.0.0.1', exits(0));
answer(IPV6 . '-c -s 2001:db8::10/64?2001:db8::1', exits(0));
set_network_configuration_ipv4(new Session(), new Ipv4Settings());
show_signals_of_command();
set_network_configuration_ipv6(new Session(), new Ipv6Settings());
show_signals_of_command();
--EXPECT--
14 26 27
14 26 27
