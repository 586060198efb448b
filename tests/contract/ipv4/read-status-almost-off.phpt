--TEST--
Only exactly two question marks mean that DHCP is off; any other status is itself taken as the settings.
--FILE--
<?php
include 'scripted_platform.inc';
answer(IPV4 . '-g host', exits(0), 'library-7');
foreach (array('?', '???', '?? ', ' ??', "??\n", '??0', "??\0") as $status) {
  answer(IPV4 . '-d status', exits(0), $status);
  show(get_network_configuration_ipv4(new Session()));
}
show_lines('/ -g static|lets return/');
--EXPECT--
stdClass {hostname: "library-7", dhcpEnabled: true, ip: "", gateway: "0.0.0.0", netmask: ""}
stdClass {hostname: "library-7", dhcpEnabled: true, ip: "", gateway: "", netmask: ""}
stdClass {hostname: "library-7", dhcpEnabled: true, ip: "", gateway: " ", netmask: ""}
stdClass {hostname: "library-7", dhcpEnabled: true, ip: " ", gateway: "", netmask: ""}
stdClass {hostname: "library-7", dhcpEnabled: true, ip: "", gateway: "\n", netmask: ""}
stdClass {hostname: "library-7", dhcpEnabled: true, ip: "", gateway: "0", netmask: ""}
stdClass {hostname: "library-7", dhcpEnabled: true, ip: "", gateway: "", netmask: ""}
TRACE[time]:Could not get IPv4 network information, lets return zero's for IP settings.:<>
TRACE[time]:Could not get IPv4 network information, lets return zero's for IP settings.:<>
