--TEST--
Null, false, zero, the empty text and what is no text at all in "dhcpEnabled", and none of it, mean a static address.
--FILE--
<?php
include 'scripted_platform.inc';
$settings = new Ipv4Settings();
answer('gethostname', 'library');
answer(IPV4 . '-c -s 10.0.0.5?255.0.0.0?10.0.0.1', exits(0));
foreach (array(null, false, 0, 0.0, '', array(), array('1'), new Session()) as $flag) {
  $settings->dhcpEnabled = $flag;
  set_network_configuration_ipv4(new Session(), $settings);
  run_thread();
  echo text_of($flag), ":\n";
  show_lines('/^run|Leaving/');
}
unset($settings->dhcpEnabled);
set_network_configuration_ipv4(new Session(), $settings);
run_thread();
echo "none:\n";
show_lines('/^run|Leaving/');
--EXPECT--
null:
run: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv4Manager.sh -c -s 10.0.0.5?255.0.0.0?10.0.0.1
TRACE[time]:Leaving set_network_ipv4:<>
false:
run: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv4Manager.sh -c -s 10.0.0.5?255.0.0.0?10.0.0.1
TRACE[time]:Leaving set_network_ipv4:<>
integer 0:
run: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv4Manager.sh -c -s 10.0.0.5?255.0.0.0?10.0.0.1
TRACE[time]:Leaving set_network_ipv4:<>
double 0:
run: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv4Manager.sh -c -s 10.0.0.5?255.0.0.0?10.0.0.1
TRACE[time]:Leaving set_network_ipv4:<>
"":
run: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv4Manager.sh -c -s 10.0.0.5?255.0.0.0?10.0.0.1
TRACE[time]:Leaving set_network_ipv4:<>
array():
run: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv4Manager.sh -c -s 10.0.0.5?255.0.0.0?10.0.0.1
TRACE[time]:Leaving set_network_ipv4:<>
array(0: "1"):
run: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv4Manager.sh -c -s 10.0.0.5?255.0.0.0?10.0.0.1
TRACE[time]:Leaving set_network_ipv4:<>
Session {user: "admin"}:
run: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv4Manager.sh -c -s 10.0.0.5?255.0.0.0?10.0.0.1
TRACE[time]:Leaving set_network_ipv4:<>
none:
run: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv4Manager.sh -c -s 10.0.0.5?255.0.0.0?10.0.0.1
TRACE[time]:Leaving set_network_ipv4:<>
