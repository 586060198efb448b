--TEST--
The number in the traces of a failure is always 0, whatever the result of the script.
--FILE--
<?php
include 'scripted_platform.inc';
$settings = new Ipv4Settings();
answer('gethostname', 'library');
foreach (array(exits(1), exits(255), killed_by(15), -1) as $result) {
  answer(IPV4 . '-c -s 10.0.0.5?255.0.0.0?10.0.0.1', $result);
  answer(IPV4 . '-c -d on', $result);
  $settings->dhcpEnabled = false;
  set_network_configuration_ipv4(new Session(), $settings);
  run_thread();
  $settings->dhcpEnabled = '1';
  set_network_configuration_ipv4(new Session(), $settings);
  run_thread();
}
show_lines('/Could not|Leaving/');
--EXPECT--
TRACE[time]:Could not set network settings (dhcp off).:<0>
TRACE[time]:Could not set network settings (dhcp on).:<0>
TRACE[time]:Could not set network settings (dhcp off).:<0>
TRACE[time]:Could not set network settings (dhcp on).:<0>
TRACE[time]:Could not set network settings (dhcp off).:<0>
TRACE[time]:Could not set network settings (dhcp on).:<0>
TRACE[time]:Could not set network settings (dhcp off).:<0>
TRACE[time]:Could not set network settings (dhcp on).:<0>
