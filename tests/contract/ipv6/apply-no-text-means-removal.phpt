--TEST--
Null, false, zero, the empty text and what is no text at all in "staticEnabled", and none of it, mean removal.
--FILE--
<?php
include 'scripted_platform.inc';
$settings = new Ipv6Settings();
answer(IPV6 . '-r ', exits(0));
foreach (array(null, false, 0, 0.0, '', array(), array('1'), new Session()) as $flag) {
  $settings->staticEnabled = $flag;
  set_network_configuration_ipv6(new Session(), $settings);
  run_thread();
  echo text_of($flag), ":\n";
  show_lines('/^run|Leaving/');
}
unset($settings->staticEnabled);
set_network_configuration_ipv6(new Session(), $settings);
run_thread();
echo "none:\n";
show_lines('/^run|Leaving/');
--EXPECT--
null:
run: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv6Manager.sh -r
TRACE[time]:Leaving set_network_ipv6:<>
false:
run: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv6Manager.sh -r
TRACE[time]:Leaving set_network_ipv6:<>
integer 0:
run: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv6Manager.sh -r
TRACE[time]:Leaving set_network_ipv6:<>
double 0:
run: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv6Manager.sh -r
TRACE[time]:Leaving set_network_ipv6:<>
"":
run: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv6Manager.sh -r
TRACE[time]:Leaving set_network_ipv6:<>
array():
run: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv6Manager.sh -r
TRACE[time]:Leaving set_network_ipv6:<>
array(0: "1"):
run: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv6Manager.sh -r
TRACE[time]:Leaving set_network_ipv6:<>
Session {user: "admin"}:
run: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv6Manager.sh -r
TRACE[time]:Leaving set_network_ipv6:<>
none:
run: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv6Manager.sh -r
TRACE[time]:Leaving set_network_ipv6:<>
