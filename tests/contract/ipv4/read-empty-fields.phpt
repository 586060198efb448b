--TEST--
An empty field is an empty text and no reason for zeros.
--FILE--
<?php
include 'scripted_platform.inc';
answer(IPV4 . '-g host', exits(0), '');
foreach (array('?255.0.0.0?10.0.0.1', '10.0.0.5??10.0.0.1', '10.0.0.5?255.0.0.0?') as $status) {
  answer(IPV4 . '-d status', exits(0), $status);
  show(get_network_configuration_ipv4(new Session()));
}
show_lines('/lets return/');
--EXPECT--
stdClass {hostname: "", dhcpEnabled: true, ip: "", gateway: "10.0.0.1", netmask: "255.0.0.0"}
stdClass {hostname: "", dhcpEnabled: true, ip: "10.0.0.5", gateway: "10.0.0.1", netmask: ""}
stdClass {hostname: "", dhcpEnabled: true, ip: "10.0.0.5", gateway: "", netmask: "255.0.0.0"}
