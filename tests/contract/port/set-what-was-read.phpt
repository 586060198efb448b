--TEST--
What was read can be set as it is; an unknown duplex, -1, is then full.
--FILE--
<?php
include 'scripted_platform.inc';
foreach (array('on?100?full', 'off?10?half', 'on?10?auto') as $output) {
  answer(IPV4 . '-g port', exits(0), $output);
  $settings = get_eth2_port_settings(new Session());
  foreach (array('full', 'half') as $duplex) {
    answer(IPV4 . "-P on?100?$duplex", exits(0), '');
    answer(IPV4 . "-P on?10?$duplex", exits(0), '');
    answer(IPV4 . "-P off?10?$duplex", exits(0), '');
  }
  set_eth2_port_settings(new Session(), $settings->AutoNegotiate, $settings->Speed, $settings->Duplex);
}
show_lines('/^read: .* -P|INVALID/');
--EXPECT--
read: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv4Manager.sh -P on?100?full
read: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv4Manager.sh -P off?10?half
read: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv4Manager.sh -P on?10?full
