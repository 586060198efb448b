--TEST--
Names are compared whole: neither the beginning of the current name nor a longer one equals it.
--FILE--
<?php
include 'scripted_platform.inc';
answer('gethostname', 'library');
answer('IMgmtAppConfig.getSSLEnabled', 'Succeeded', 0);
foreach (array('librar', 'library', 'library7', '') as $name) {
  answer(IPV4 . '-n ' . $name, exits(0));
  set_network_hostname(new Session(), $name);
}
show_lines('/^run/');
--EXPECT--
run: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv4Manager.sh -n librar
run: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv4Manager.sh -n library7
run: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv4Manager.sh -n
