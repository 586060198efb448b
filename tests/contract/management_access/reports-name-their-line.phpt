--TEST--
A report carries the line of the statement in the module's sources that makes it; where a test of the service makes it, the line of that test in its function.
--FILE--
<?php
include 'scripted_platform.inc';

// Whether the statement with the message, from the word "report" to its semicolon, lies on the line.
function is_made_at($message, $line) {
  foreach (glob(platform_file('src') . '/*.cc') as $source) {
    $lines = file($source);
    for ($first = $line; $first > 0 && $first > $line - 3; --$first) {
      $statement = implode('', array_slice($lines, $first - 1, $line - $first + 3));
      $pattern = '/^.*\breport(Result|Failure)\([^;]*"' . preg_quote($message, '/') . '"[^;]*;/';
      if (preg_match($pattern, $statement, $found) && $first + substr_count($found[0], "\n") >= $line) return true;
    }
  }
  return false;
}

// The function that tests on the line whether the service is there.
function function_that_tests_at($line) {
  $lines = file(platform_file('src/dns_ssl_ports.cc'));
  if (!preg_match('/\bisThere\(/', $lines[$line - 1])) return "a line without a test, $line";
  for ($above = $line - 1; $above > 0; --$above) {
    if (preg_match('/^HANDLER\((\w+)\)/', $lines[$above - 1], $found)) return $found[1];
  }
  return "no function, line $line";
}

function reports() {
  preg_match_all('|^report: \S+ "(.*)" http/src/network:(\d+)$|m', transcript(), $reports, PREG_SET_ORDER);
  forget_transcript();
  return $reports;
}

answer('gethostname', 'library');
answer(IPV4 . '-g host', exits(1), '');
answer(IPV4 . '-n library-8', exits(1));
answer('IMgmtAppConfig.getSSLEnabled', 'Failed');
get_network_hostname();
set_network_hostname(new Session(), 'library-8');

append_to(IPV6_ENABLED_FILE, '');
answer(WRAPPER . '/bin/touch ' . IPV6_ENABLED_FILE, exits(1));
answer(WRAPPER . '/bin/rm ' . IPV6_ENABLED_FILE, exits(1));
answer(IPV6 . '-g static', exits(1), '2001:db8::10');
answer(IPV6 . '-l', exits(1), '');
answer(IPV6 . '-L 1', exits(1));
answer(IPV6 . '-c -d on', exits(1));
answer(IPV6 . '-g all', exits(1), '');
set_ipv6_enabled(new Session(), true);
set_ipv6_enabled(new Session(), false);
get_network_configuration_ipv6(new Session());
is_ipv6_static_enabled();
is_stateless_enabled();
set_stateless_enabled(new Session(), true);
set_ipv6_dhcp_enabled(new Session(), true);
get_all_ipv6_addresses();

class DnsSettings {
  var $dnsPrimary = '10.1.1.1';
  var $dnsSecondary = '10.1.1.2';
}
answer(IPV6 . '-g dns', exits(1), '');
answer(IPV6 . '-D "10.1.1.1 10.1.1.2"', exits(1), '');
get_network_dns(new Session());
set_network_dns(new Session(), new DnsSettings());

answer(IPV4 . '-P on?10?full', exits(1), '');
answer(IPV4 . '-g port', exits(1), '');
set_eth2_port_settings(new Session(), 1, 10, 1);
get_eth2_port_settings(new Session());

answer('IMgmtAppConfig.setSSLEnabled', 'Failed');
set_ssl_settings(new Session(), true);
foreach (reports() as $report) {
  echo $report[1], is_made_at($report[1], $report[2]) ? ": is made there\n" : ": is not made at line $report[2]\n";
}

answer('IMgmtAppConfig', 'empty');
get_ssl_settings(new Session());
set_ssl_settings(new Session(), true);
foreach (reports() as $report) echo "$report[1]: ", function_that_tests_at($report[2]), "\n";
--EXPECT--
Could not get hostname information: is made there
Could not set library hostname: is made there
Failed to enable IPv6.: is made there
Failed to disable IPv6.: is made there
Failed to get IPv6 static address with the script.: is made there
Failed to get IPv6 static address - No Address and/or Gateway returned.: is made there
Failed to get IPv6 static address - No Prefix returned.: is made there
Failed to get IPv6 static address with the script.: is made there
Could not get hostname information: is made there
Failed to configure stateless settings.: is made there
Failed to configure DHCP settings - Make sure you have a valid IPv6 DHCP server running.: is made there
Failed to get IPv6 address.: is made there
Failed to get DNS addresses: : is made there
Failed to set DNS addresses.: is made there
Failed to set port settings.: is made there
Failed to get port settings.: is made there
Could not set SSL settings: is made there
Could not get the App Mgnt config interface: get_ssl_settings
Could not get the App Mgnt config interface: set_ssl_settings
