--TEST--
Whether the lease cannot be read or is malformed: the static settings, which are in force without DHCP only, are not asked for in its place.
--PLATFORM--
development
--FILE--
<?php
include 'scripted_platform.inc';
$ipv4 = array('-g host' => 'library-7', '-d status' => '10.20.0.105?255.255.255.0?10.20.0.1',
              '-g static' => '10.20.0.42?255.255.0.0?10.20.0.2', '-g port' => 'on?10?full');
$ipv6 = array('-l' => '0', '-g static' => '', '-g dns' => 'disabled', '-g all' => '');
answer_by_script(IPV6_SCRIPT, $ipv6);

function show_asked() {
  if (file_exists(platform_file('asked'))) unlink(platform_file('asked'));
  $settings = get_fw_settings(new Session());
  show(array($settings->dhcpEnabled, $settings->ip, $settings->netmask, $settings->gateway));
  show_lines('/^Warning/');
  $asked = preg_grep('/^ipv4/', file(platform_file('asked')));
  sort($asked);
  echo implode('', $asked);
}

echo "failing\n";
answer_by_script(IPV4_SCRIPT, $ipv4, '-d status');
show_asked();
echo "failing after it has said that DHCP is off\n";
$ipv4['-d status'] = '??';
answer_by_script(IPV4_SCRIPT, $ipv4, '-d status');
show_asked();
echo "malformed\n";
$ipv4['-d status'] = '?';
answer_by_script(IPV4_SCRIPT, $ipv4);
show_asked();
echo "DHCP is off\n";
$ipv4['-d status'] = '??';
answer_by_script(IPV4_SCRIPT, $ipv4);
show_asked();
--EXPECT--
failing
array(0: false, 1: "0.0.0.0", 2: "0.0.0.0", 3: "0.0.0.0")
Warning: get_fw_settings(): Could not get IPv4 network information (code 0x00000001, utility/getNetworkSettings)
ipv4Manager.sh -d status
ipv4Manager.sh -g host
ipv4Manager.sh -g port
failing after it has said that DHCP is off
array(0: false, 1: "0.0.0.0", 2: "0.0.0.0", 3: "0.0.0.0")
Warning: get_fw_settings(): Could not get IPv4 network information (code 0x00000001, utility/getNetworkSettings)
ipv4Manager.sh -d status
ipv4Manager.sh -g host
ipv4Manager.sh -g port
malformed
array(0: false, 1: "0.0.0.0", 2: "0.0.0.0", 3: "0.0.0.0")
Warning: get_fw_settings(): Could not get IPv4 network information (code 0x00000001, utility/getNetworkSettings)
ipv4Manager.sh -d status
ipv4Manager.sh -g host
ipv4Manager.sh -g port
DHCP is off
array(0: false, 1: "10.20.0.42", 2: "255.255.0.0", 3: "10.20.0.2")
ipv4Manager.sh -d status
ipv4Manager.sh -g host
ipv4Manager.sh -g port
ipv4Manager.sh -g static
