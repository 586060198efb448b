--TEST--
The worker has texts of its own: the page's may be gone, and their memory used again, before it reads them.
--FILE--
<?php
include 'scripted_platform.inc';
function apply() {
  $settings = new Ipv6Settings();
  foreach (array('staticEnabled', 'ipStatic', 'prefix', 'gateway') as $name) $settings->$name = strrev(str_repeat("$name,", 5));
  set_network_configuration_ipv6(new Session(), $settings);
}
$address = strrev(str_repeat('ipStatic,', 5));
$prefix = strrev(str_repeat('prefix,', 5));
$gateway = strrev(str_repeat('gateway,', 5));
answer(IPV6 . "-c -s $address/$prefix?$gateway", exits(0));
apply();
$texts = array();
for ($i = 0; $i < 1000; ++$i) {
  foreach (array(35, 40, 45, 70) as $length) $texts[] = str_repeat('x', $length);
}
forget_transcript();
run_thread();
show_lines('/^Data|^TRACE.*Leaving/');
--EXPECT--
Data was: ,citatSpi,citatSpi,citatSpi,citatSpi,citatSpi, ,yawetag,yawetag,yawetag,yawetag,yawetag, ,xiferp,xiferp,xiferp,xiferp,xiferp
TRACE[time]:Leaving set_network_ipv6:<>
