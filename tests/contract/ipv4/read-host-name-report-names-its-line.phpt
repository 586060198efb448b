--TEST--
The report of a host name that cannot be read names the statement of this function, not that of the function for the host name alone.
--FILE--
<?php
include 'scripted_platform.inc';

// The function that the line lies in, and whether a report with the message begins there or just above.
function place_of($line, $message) {
  $lines = file(platform_file('src/ipv4.cc'));
  $statement = implode('', array_slice($lines, $line - 2, 3));
  $place = preg_match("/report\w+\([^;]*\"$message\"/", $statement) ? 'report in ' : 'no report in ';
  for ($above = $line - 1; $above > 0; --$above) {
    if (preg_match('/^HANDLER\((\w+)\)/', $lines[$above - 1], $found)) return $place . $found[1];
  }
  return $place . "no function, line $line";
}

function show_place() {
  $message = 'Could not get hostname information';
  preg_match("|\"$message\" http/src/network:(\d+)\$|m", transcript(), $report);
  forget_transcript();
  echo place_of($report[1], $message), "\n";
}

answer(IPV4 . '-d status', exits(0), '10.0.0.5?255.0.0.0?10.0.0.1');
answer(IPV4 . '-g host', exits(1), '');
get_network_configuration_ipv4(new Session());
show_place();
get_network_hostname();
show_place();
--EXPECT--
report in get_network_configuration_ipv4
report in get_network_hostname
