--TEST--
Fields behind the third are never returned, however many there are, and a question mark at the end makes one more.
--FILE--
<?php
include 'scripted_platform.inc';
answer(IPV4 . '-g host', exits(0), 'library-7');
foreach (array('a?b?c?', '?a?b?c', 'a?b?c?0.0.0.0', 'a?b?c' . str_repeat('?x', 1000)) as $status) {
  answer(IPV4 . '-d status', exits(0), $status);
  show(get_network_configuration_ipv4(new Session()));
}
show_lines('/lets return/');
--EXPECT--
stdClass {hostname: "library-7", dhcpEnabled: true, ip: "a", gateway: "c", netmask: "b"}
stdClass {hostname: "library-7", dhcpEnabled: true, ip: "", gateway: "b", netmask: "a"}
stdClass {hostname: "library-7", dhcpEnabled: true, ip: "a", gateway: "c", netmask: "b"}
stdClass {hostname: "library-7", dhcpEnabled: true, ip: "a", gateway: "c", netmask: "b"}
TRACE[time]:Could not get IPv4 network information, lets return zero's for IP settings.:<>
TRACE[time]:Could not get IPv4 network information, lets return zero's for IP settings.:<>
TRACE[time]:Could not get IPv4 network information, lets return zero's for IP settings.:<>
TRACE[time]:Could not get IPv4 network information, lets return zero's for IP settings.:<>
