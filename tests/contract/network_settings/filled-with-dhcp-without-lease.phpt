--TEST--
While DHCP is on and there is no lease, DHCP is shown as on and the addresses as zeros; the static settings are not asked for.
--PLATFORM--
development
--FILE--
<?php
include 'scripted_platform.inc';
$ipv4 = array('-g host' => 'library-7', '-d status' => '10.20.0.105?255.255.255.0?10.20.0.1',
              '-g static' => '10.20.0.42?255.255.0.0?10.20.0.2', '-g port' => 'on?10?full');
$ipv6 = array('-l' => '1', '-g static' => '2001:db8:20::10/48?fe80::1', '-g dns' => '10.20.0.1 2001:db8:20::1',
              '-g all' => '2001:db8:20::10?2001:db8:20::100');
$ipv4['-d status'] = '0.0.0.0?0.0.0.0?0.0.0.0';
answer_by_script(IPV4_SCRIPT, $ipv4);
answer_by_script(IPV6_SCRIPT, $ipv6);
$settings = get_fw_settings(new Session());
show(array($settings->dhcpEnabled, $settings->ip, $settings->netmask, $settings->gateway));
show_lines('/^Warning/');
$asked = preg_grep('/^ipv4/', file(platform_file('asked')));
sort($asked);
echo implode('', $asked);
--EXPECT--
array(0: true, 1: "0.0.0.0", 2: "0.0.0.0", 3: "0.0.0.0")
ipv4Manager.sh -d status
ipv4Manager.sh -g host
ipv4Manager.sh -g port
