--TEST--
The worker has texts of its own: the page's may be gone, and their memory used again, before it reads them.
--FILE--
<?php
include 'scripted_platform.inc';
function apply() {
  $settings = new Ipv4Settings();
  foreach (array('hostname', 'ip', 'netmask', 'gateway') as $name) $settings->$name = strrev(str_repeat("$name ", 5));
  set_network_configuration_ipv4(new Session(), $settings);
}
$ip = strrev(str_repeat('ip ', 5));
$netmask = strrev(str_repeat('netmask ', 5));
$gateway = strrev(str_repeat('gateway ', 5));
$name = strrev(str_repeat('hostname ', 5));
answer('gethostname', $name);
answer(IPV4 . "-c -s $ip?$netmask?$gateway", exits(0));
apply();
$texts = array();
for ($i = 0; $i < 1000; ++$i) {
  foreach (array(15, 40, 45) as $length) $texts[] = str_repeat('x', $length);
}
forget_transcript();
run_thread();
show_lines('/^TRACE|^run: .*x/');
--EXPECT--
TRACE[time]:Entering set_network_ipv4:<>
TRACE[time]:Leaving set_network_ipv4:<>
