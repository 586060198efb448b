--TEST--
Every notation of an address becomes eight groups in lower case, without leading zeros and without a zone.
--FILE--
<?php
include 'scripted_platform.inc';
$notations = array('2001:0DB8:0000:0000:0000:0000:00AB:0010', '1:2:3:4:5:6:7:8', '::1', '1::', '::ffff:10.0.0.1',
                   'fe80::1%eth0', '2001:db8::a:0:0:b');
foreach ($notations as $address) {
  answer(IPV6 . '-g static', exits(0), "$address/64?$address");
  $settings = get_network_configuration_ipv6(new Session());
  echo $settings->ipStatic, $settings->gateway == $settings->ipStatic ? ' as gateway, too' : $settings->gateway, "\n";
}
show_lines('/^report/');
--EXPECT--
2001:db8:0:0:0:0:ab:10 as gateway, too
1:2:3:4:5:6:7:8 as gateway, too
0:0:0:0:0:0:0:1 as gateway, too
1:0:0:0:0:0:0:0 as gateway, too
0:0:0:0:0:ffff:a00:1 as gateway, too
fe80:0:0:0:0:0:0:1 as gateway, too
2001:db8:0:0:a:0:0:b as gateway, too
