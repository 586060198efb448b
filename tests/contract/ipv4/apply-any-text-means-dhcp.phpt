--TEST--
Any text in "dhcpEnabled" means DHCP, also one that reads like a no.
--FILE--
<?php
include 'scripted_platform.inc';
$settings = new Ipv4Settings();
answer('gethostname', 'library');
answer(IPV4 . '-c -d on', exits(0));
foreach (array('0', 'FALSE', 'false', 'off', 'no', '??', ' ', "\n", true, 1, -1, 0.5) as $flag) {
  $settings->dhcpEnabled = $flag;
  set_network_configuration_ipv4(new Session(), $settings);
  run_thread();
  echo text_of($flag), ":\n";
  show_lines('/^run|Leaving/');
}
--EXPECT--
"0":
run: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv4Manager.sh -c -d on
TRACE[time]:Leaving set_network_ipv4:<>
"FALSE":
run: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv4Manager.sh -c -d on
TRACE[time]:Leaving set_network_ipv4:<>
"false":
run: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv4Manager.sh -c -d on
TRACE[time]:Leaving set_network_ipv4:<>
"off":
run: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv4Manager.sh -c -d on
TRACE[time]:Leaving set_network_ipv4:<>
"no":
run: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv4Manager.sh -c -d on
TRACE[time]:Leaving set_network_ipv4:<>
"??":
run: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv4Manager.sh -c -d on
TRACE[time]:Leaving set_network_ipv4:<>
" ":
run: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv4Manager.sh -c -d on
TRACE[time]:Leaving set_network_ipv4:<>
"\n":
run: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv4Manager.sh -c -d on
TRACE[time]:Leaving set_network_ipv4:<>
true:
run: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv4Manager.sh -c -d on
TRACE[time]:Leaving set_network_ipv4:<>
integer 1:
run: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv4Manager.sh -c -d on
TRACE[time]:Leaving set_network_ipv4:<>
integer -1:
run: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv4Manager.sh -c -d on
TRACE[time]:Leaving set_network_ipv4:<>
double 0.5:
run: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv4Manager.sh -c -d on
TRACE[time]:Leaving set_network_ipv4:<>
