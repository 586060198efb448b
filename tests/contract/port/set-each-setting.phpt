--TEST--
Each of the three settings is passed on by itself.
--FILE--
<?php
include 'scripted_platform.inc';
foreach (array('on', 'off') as $autonegotiation) {
  foreach (array(10, 100) as $speed) {
    foreach (array('half', 'full') as $duplex) {
      answer(IPV4 . "-P $autonegotiation?$speed?$duplex", exits(0), '');
      set_eth2_port_settings(new Session(), $autonegotiation == 'on' ? 1 : 0, $speed, $duplex == 'full' ? 1 : 0);
    }
  }
}
show_lines('/^(read|report)|INVALID/');
--EXPECT--
read: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv4Manager.sh -P on?10?half
read: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv4Manager.sh -P on?10?full
read: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv4Manager.sh -P on?100?half
read: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv4Manager.sh -P on?100?full
read: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv4Manager.sh -P off?10?half
read: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv4Manager.sh -P off?10?full
read: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv4Manager.sh -P off?100?half
read: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv4Manager.sh -P off?100?full
