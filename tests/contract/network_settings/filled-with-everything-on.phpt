--TEST--
All settings are in one object, with the types of the single functions, and each script is asked once for each.
--PLATFORM--
development
--FILE--
<?php
include 'scripted_platform.inc';
$ipv4 = array('-g host' => 'library-7', '-d status' => '10.20.0.105?255.255.255.0?10.20.0.1',
              '-g static' => '10.20.0.42?255.255.0.0?10.20.0.2', '-g port' => 'on?10?full');
$ipv6 = array('-l' => '1', '-g static' => '2001:db8:20::10/48?fe80::1', '-g dns' => '10.20.0.1 2001:db8:20::1',
              '-g all' => '2001:db8:20::10?2001:db8:20::100');
append_to(IPV6_ENABLED_FILE, '');
append_to(IPV6_DHCP_FILE, '');
answer_by_script(IPV4_SCRIPT, $ipv4);
answer_by_script(IPV6_SCRIPT, $ipv6);
set_ssl_settings(new Session(), true);
forget_transcript();
show(get_fw_settings(new Session()));
$asked = file(platform_file('asked'));
sort($asked);
echo implode('', $asked);
show_transcript();
--EXPECT--
stdClass {hostname: "library-7", dhcpEnabled: true, ip: "10.20.0.105", netmask: "255.255.255.0", gateway: "10.20.0.1", ipv6Enabled: true, ipv6DhcpEnabled: true, statelessEnabled: true, staticEnabled: true, ipStatic: "2001:db8:20:0:0:0:0:10", prefix: "48", ipv6Gateway: "fe80:0:0:0:0:0:0:1", ipv6Addresses: array(0: "2001:db8:20::10", 1: "2001:db8:20::100"), dnsPrimary: "10.20.0.1", dnsSecondary: "2001:db8:20::1", sslEnabled: true, snmpEnabled: true, AutoNegotiate: integer 1, Speed: integer 10, Duplex: integer 1}
ipv4Manager.sh -d status
ipv4Manager.sh -g host
ipv4Manager.sh -g port
ipv6Manager.sh -g all
ipv6Manager.sh -g dns
ipv6Manager.sh -g static
ipv6Manager.sh -l
TRACE[time]:Entering get_fw_settings:<>
TRACE[time]:Exiting get_fw_settings:<>
