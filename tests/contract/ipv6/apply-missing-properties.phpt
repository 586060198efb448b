--TEST--
A missing text counts as the empty one; its place in the settings stays, and there is no prefix by default.
--FILE--
<?php
include 'scripted_platform.inc';
function apply_without($property, $settings_text) {
  $settings = new Ipv6Settings();
  unset($settings->$property);
  answer(IPV6 . '-c -s ' . $settings_text, exits(0));
  set_network_configuration_ipv6(new Session(), $settings);
  run_thread();
}
apply_without('ipStatic', '/64?2001:db8::1');
apply_without('prefix', '2001:db8::10/?2001:db8::1');
apply_without('gateway', '2001:db8::10/64?');
show_lines('/^run|^Data|Leaving/');
--EXPECT--
run: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv6Manager.sh -c -s /64?2001:db8::1
Data was: , 2001:db8::1, 64
TRACE[time]:Leaving set_network_ipv6:<>
run: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv6Manager.sh -c -s 2001:db8::10/?2001:db8::1
Data was: 2001:db8::10, 2001:db8::1, 
TRACE[time]:Leaving set_network_ipv6:<>
run: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv6Manager.sh -c -s 2001:db8::10/64?
Data was: 2001:db8::10, , 64
TRACE[time]:Leaving set_network_ipv6:<>
