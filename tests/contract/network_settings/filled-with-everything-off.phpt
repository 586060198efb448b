--TEST--
What is switched off has its "off" value, of the same type, and nothing is reported.
--PLATFORM--
development
--FILE--
<?php
include 'scripted_platform.inc';
$ipv4 = array('-g host' => 'library-7', '-d status' => '??', '-g static' => '10.20.0.42?255.255.0.0?10.20.0.2',
              '-g port' => 'off?100?half');
$ipv6 = array('-l' => '0', '-g static' => '', '-g dns' => 'disabled', '-g all' => '');
answer_by_script(IPV4_SCRIPT, $ipv4);
answer_by_script(IPV6_SCRIPT, $ipv6);
$settings = new SnmpSettings();
$settings->version1 = false;
set_snmp_settings(new Session(), $settings);
forget_transcript();
show(get_fw_settings(new Session()));
show_transcript();
--EXPECT--
stdClass {hostname: "library-7", dhcpEnabled: false, ip: "10.20.0.42", netmask: "255.255.0.0", gateway: "10.20.0.2", ipv6Enabled: false, ipv6DhcpEnabled: false, statelessEnabled: false, staticEnabled: false, ipStatic: "0:0:0:0:0:0:0:0", prefix: "64", ipv6Gateway: "0:0:0:0:0:0:0:0", ipv6Addresses: array(), dnsPrimary: "", dnsSecondary: "", sslEnabled: false, snmpEnabled: false, AutoNegotiate: integer 0, Speed: integer 100, Duplex: integer 0}
TRACE[time]:Entering get_fw_settings:<>
TRACE[time]:Exiting get_fw_settings:<>
