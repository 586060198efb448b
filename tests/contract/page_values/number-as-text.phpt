--TEST--
A number or true passed for a text is the text that the engine makes of it.
--FILE--
<?php
include 'scripted_platform.inc';
answer('gethostname', 'library');
answer('IMgmtAppConfig.getSSLEnabled', 'Succeeded', 0);
foreach (array(42, -1, 1.5, true, false) as $name) {
  answer(IPV4 . '-n ' . $name, exits(0));
  show(set_network_hostname(new Session(), $name));
}
show_lines('/^(run|unexpected)/');
--EXPECT--
null
null
null
null
null
run: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv4Manager.sh -n 42
run: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv4Manager.sh -n -1
run: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv4Manager.sh -n 1.5
run: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv4Manager.sh -n 1
run: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv4Manager.sh -n
