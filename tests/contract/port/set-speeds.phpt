--TEST--
Only 10 and 100 are speeds of the port; any other number is traced and becomes 10.
--FILE--
<?php
include 'scripted_platform.inc';
foreach (array(10, 100, 0, 1, 11, 99, 101, 1000, -10, -100, 2147483647) as $speed) {
  foreach (array(10, 100) as $possible) answer(IPV4 . "-P on?$possible?full", exits(0), '');
  set_eth2_port_settings(new Session(), 1, $speed, 1);
  echo $speed, ":\n";
  show_lines('/^read|INVALID/');
}
--EXPECT--
10:
read: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv4Manager.sh -P on?10?full
100:
read: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv4Manager.sh -P on?100?full
0:
TRACE[time]:INVALID ETH2 SPEED PARAMETER.  DEFAULT IS SET TO 10.:<>
read: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv4Manager.sh -P on?10?full
1:
TRACE[time]:INVALID ETH2 SPEED PARAMETER.  DEFAULT IS SET TO 10.:<>
read: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv4Manager.sh -P on?10?full
11:
TRACE[time]:INVALID ETH2 SPEED PARAMETER.  DEFAULT IS SET TO 10.:<>
read: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv4Manager.sh -P on?10?full
99:
TRACE[time]:INVALID ETH2 SPEED PARAMETER.  DEFAULT IS SET TO 10.:<>
read: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv4Manager.sh -P on?10?full
101:
TRACE[time]:INVALID ETH2 SPEED PARAMETER.  DEFAULT IS SET TO 10.:<>
read: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv4Manager.sh -P on?10?full
1000:
TRACE[time]:INVALID ETH2 SPEED PARAMETER.  DEFAULT IS SET TO 10.:<>
read: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv4Manager.sh -P on?10?full
-10:
TRACE[time]:INVALID ETH2 SPEED PARAMETER.  DEFAULT IS SET TO 10.:<>
read: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv4Manager.sh -P on?10?full
-100:
TRACE[time]:INVALID ETH2 SPEED PARAMETER.  DEFAULT IS SET TO 10.:<>
read: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv4Manager.sh -P on?10?full
2147483647:
TRACE[time]:INVALID ETH2 SPEED PARAMETER.  DEFAULT IS SET TO 10.:<>
read: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv4Manager.sh -P on?10?full
