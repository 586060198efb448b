--TEST--
A missing text counts as the empty one, and its place between the question marks stays.
--FILE--
<?php
include 'scripted_platform.inc';
answer('gethostname', 'library');
function apply_without($property, $settings_text) {
  $settings = new Ipv4Settings();
  unset($settings->$property);
  answer(IPV4 . '-c -s ' . $settings_text, exits(0));
  set_network_configuration_ipv4(new Session(), $settings);
  run_thread();
}
apply_without('ip', '?255.0.0.0?10.0.0.1');
apply_without('netmask', '10.0.0.5??10.0.0.1');
apply_without('gateway', '10.0.0.5?255.0.0.0?');
show_lines('/^run|Leaving/');
--EXPECT--
run: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv4Manager.sh -c -s ?255.0.0.0?10.0.0.1
TRACE[time]:Leaving set_network_ipv4:<>
run: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv4Manager.sh -c -s 10.0.0.5??10.0.0.1
TRACE[time]:Leaving set_network_ipv4:<>
run: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv4Manager.sh -c -s 10.0.0.5?255.0.0.0?
TRACE[time]:Leaving set_network_ipv4:<>
