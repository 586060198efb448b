--TEST--
A numeric text, a fraction, a flag or null passed for a number is what the engine converts it to.
--FILE--
<?php
include 'scripted_platform.inc';
$port = IPV4 . '-P ';
answer($port . 'on?100?full', exits(0), '');
answer($port . 'off?10?half', exits(0), '');
show(set_eth2_port_settings(new Session(), '1', 100.9, true));
show(set_eth2_port_settings(new Session(), '1e2', '100', -7));
show(set_eth2_port_settings(new Session(), null, ' 10', false));
echo implode("\n", preg_grep('/^(read|unexpected)/', explode("\n", transcript()))), "\n";
--EXPECT--
null
null
null
read: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv4Manager.sh -P on?100?full
read: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv4Manager.sh -P on?100?full
read: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv4Manager.sh -P off?10?half
