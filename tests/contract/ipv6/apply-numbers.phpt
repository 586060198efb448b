--TEST--
A number or true where a text is wanted is the text that the engine makes of it; zero, for one, is no text.
--FILE--
<?php
include 'scripted_platform.inc';
$settings = new Ipv6Settings();
$settings->ipStatic = true;
$settings->gateway = 0.5;
answer(IPV6 . '-c -s 1/64?0.5', exits(0));
answer(IPV6 . '-c -s 1/?0.5', exits(0));
foreach (array(64, 0) as $prefix) {
  $settings->prefix = $prefix;
  set_network_configuration_ipv6(new Session(), $settings);
  run_thread();
}
show_lines('/^run|Leaving/');
--EXPECT--
run: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv6Manager.sh -c -s 1/64?0.5
TRACE[time]:Leaving set_network_ipv6:<>
run: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv6Manager.sh -c -s 1/?0.5
TRACE[time]:Leaving set_network_ipv6:<>
