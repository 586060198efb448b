--TEST--
Any text in "staticEnabled" means a static address, also one that reads like a no.
--FILE--
<?php
include 'scripted_platform.inc';
$settings = new Ipv6Settings();
answer(IPV6 . '-c -s 2001:db8::10/64?2001:db8::1', exits(0));
foreach (array('0', 'FALSE', 'false', 'off', 'no', ' ', "\n", true, 1, -1, 0.5) as $flag) {
  $settings->staticEnabled = $flag;
  set_network_configuration_ipv6(new Session(), $settings);
  run_thread();
  echo text_of($flag), ":\n";
  show_lines('/^run|Leaving/');
}
--EXPECT--
"0":
run: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv6Manager.sh -c -s 2001:db8::10/64?2001:db8::1
TRACE[time]:Leaving set_network_ipv6:<>
"FALSE":
run: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv6Manager.sh -c -s 2001:db8::10/64?2001:db8::1
TRACE[time]:Leaving set_network_ipv6:<>
"false":
run: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv6Manager.sh -c -s 2001:db8::10/64?2001:db8::1
TRACE[time]:Leaving set_network_ipv6:<>
"off":
run: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv6Manager.sh -c -s 2001:db8::10/64?2001:db8::1
TRACE[time]:Leaving set_network_ipv6:<>
"no":
run: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv6Manager.sh -c -s 2001:db8::10/64?2001:db8::1
TRACE[time]:Leaving set_network_ipv6:<>
" ":
run: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv6Manager.sh -c -s 2001:db8::10/64?2001:db8::1
TRACE[time]:Leaving set_network_ipv6:<>
"\n":
run: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv6Manager.sh -c -s 2001:db8::10/64?2001:db8::1
TRACE[time]:Leaving set_network_ipv6:<>
true:
run: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv6Manager.sh -c -s 2001:db8::10/64?2001:db8::1
TRACE[time]:Leaving set_network_ipv6:<>
integer 1:
run: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv6Manager.sh -c -s 2001:db8::10/64?2001:db8::1
TRACE[time]:Leaving set_network_ipv6:<>
integer -1:
run: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv6Manager.sh -c -s 2001:db8::10/64?2001:db8::1
TRACE[time]:Leaving set_network_ipv6:<>
double 0.5:
run: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv6Manager.sh -c -s 2001:db8::10/64?2001:db8::1
TRACE[time]:Leaving set_network_ipv6:<>
