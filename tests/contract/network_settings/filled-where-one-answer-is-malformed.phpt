--TEST--
An answer without its fields is reported like one that cannot be read, and its properties have their "off" values.
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
$on = get_object_vars(get_fw_settings(new Session()));

// What differs from that, and what is reported, when a script gives another answer to a question.
function show_malformed($path, $answers, $question, $answer) {
  global $on;
  $malformed = $answers;
  $malformed[$question] = $answer;
  forget_transcript();
  answer_by_script($path, $malformed);
  echo "$question: $answer\n";
  foreach (get_object_vars(get_fw_settings(new Session())) as $name => $value) {
    if (text_of($value) != text_of($on[$name])) echo "  $name: ", text_of($value), "\n";
  }
  show_lines('/^Warning/');
  answer_by_script($path, $answers);
}

show_malformed(IPV4_SCRIPT, $ipv4, '-d status', '10.20.0.105?255.255.255.0');
show_malformed(IPV4_SCRIPT, $ipv4, '-d status', '10.20.0.105?255.255.255.0?10.20.0.1?more');
show_malformed(IPV4_SCRIPT, $ipv4, '-d status', '');
show_malformed(IPV4_SCRIPT, $ipv4, '-g port', 'on?10');
show_malformed(IPV4_SCRIPT, $ipv4, '-g port', 'on?10?full?more');
show_malformed(IPV6_SCRIPT, $ipv6, '-g static', '2001:db8:20::10/48');
show_malformed(IPV6_SCRIPT, $ipv6, '-g static', '2001:db8:20::10?fe80::1');
show_malformed(IPV6_SCRIPT, $ipv6, '-g static', '2001:db8:20::10?48?fe80::1');
show_malformed(IPV6_SCRIPT, $ipv6, '-g static', '2001:db8:20::10/48?fe80::1?more');
show_malformed(IPV6_SCRIPT, $ipv6, '-g static', '2001:db8:20::10/48/64?fe80::1');
$ipv4['-d status'] = '??';
show_malformed(IPV4_SCRIPT, $ipv4, '-g static', '10.20.0.42?255.255.0.0');
show_malformed(IPV4_SCRIPT, $ipv4, '-g static', '10.20.0.42?255.255.0.0?10.20.0.2?more');
--EXPECT--
-d status: 10.20.0.105?255.255.255.0
  dhcpEnabled: false
  ip: "0.0.0.0"
  netmask: "0.0.0.0"
  gateway: "0.0.0.0"
Warning: get_fw_settings(): Could not get IPv4 network information (code 0x00000001, utility/getNetworkSettings)
-d status: 10.20.0.105?255.255.255.0?10.20.0.1?more
  dhcpEnabled: false
  ip: "0.0.0.0"
  netmask: "0.0.0.0"
  gateway: "0.0.0.0"
Warning: get_fw_settings(): Could not get IPv4 network information (code 0x00000001, utility/getNetworkSettings)
-d status: 
  dhcpEnabled: false
  ip: "0.0.0.0"
  netmask: "0.0.0.0"
  gateway: "0.0.0.0"
Warning: get_fw_settings(): Could not get IPv4 network information (code 0x00000001, utility/getNetworkSettings)
-g port: on?10
  AutoNegotiate: integer 0
  Speed: integer 100
  Duplex: integer -1
Warning: get_fw_settings(): Could not get port settings (code 0x00000001, utility/getNetworkSettings)
-g port: on?10?full?more
  AutoNegotiate: integer 0
  Speed: integer 100
  Duplex: integer -1
Warning: get_fw_settings(): Could not get port settings (code 0x00000001, utility/getNetworkSettings)
-g static: 2001:db8:20::10/48
  staticEnabled: false
  ipStatic: "0:0:0:0:0:0:0:0"
  prefix: "64"
  ipv6Gateway: "0:0:0:0:0:0:0:0"
Warning: get_fw_settings(): Could not get static IPv6 settings (code 0x00000001, utility/getNetworkSettings)
-g static: 2001:db8:20::10?fe80::1
  staticEnabled: false
  ipStatic: "0:0:0:0:0:0:0:0"
  prefix: "64"
  ipv6Gateway: "0:0:0:0:0:0:0:0"
Warning: get_fw_settings(): Could not get static IPv6 settings (code 0x00000001, utility/getNetworkSettings)
-g static: 2001:db8:20::10?48?fe80::1
  staticEnabled: false
  ipStatic: "0:0:0:0:0:0:0:0"
  prefix: "64"
  ipv6Gateway: "0:0:0:0:0:0:0:0"
Warning: get_fw_settings(): Could not get static IPv6 settings (code 0x00000001, utility/getNetworkSettings)
-g static: 2001:db8:20::10/48?fe80::1?more
  staticEnabled: false
  ipStatic: "0:0:0:0:0:0:0:0"
  prefix: "64"
  ipv6Gateway: "0:0:0:0:0:0:0:0"
Warning: get_fw_settings(): Could not get static IPv6 settings (code 0x00000001, utility/getNetworkSettings)
-g static: 2001:db8:20::10/48/64?fe80::1
  staticEnabled: false
  ipStatic: "0:0:0:0:0:0:0:0"
  prefix: "64"
  ipv6Gateway: "0:0:0:0:0:0:0:0"
Warning: get_fw_settings(): Could not get static IPv6 settings (code 0x00000001, utility/getNetworkSettings)
-g static: 10.20.0.42?255.255.0.0
  dhcpEnabled: false
  ip: "0.0.0.0"
  netmask: "0.0.0.0"
  gateway: "0.0.0.0"
Warning: get_fw_settings(): Could not get static IPv4 settings (code 0x00000001, utility/getNetworkSettings)
-g static: 10.20.0.42?255.255.0.0?10.20.0.2?more
  dhcpEnabled: false
  ip: "0.0.0.0"
  netmask: "0.0.0.0"
  gateway: "0.0.0.0"
Warning: get_fw_settings(): Could not get static IPv4 settings (code 0x00000001, utility/getNetworkSettings)
