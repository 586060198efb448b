--TEST--
The three words of the output become numbers. No service is asked and no session attached; the command is traced before it is run.
--FILE--
<?php
include 'scripted_platform.inc';
answer(IPV4 . '-g port', exits(0), 'on?100?full');
show(get_eth2_port_settings(new Session()));
show_transcript();
--EXPECT--
stdClass {AutoNegotiate: integer 1, Speed: integer 100, Duplex: integer 1}
TRACE[time]:Entering get_eth2_port_settings:<>
TRACE[time]:Command Line: :</usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv4Manager.sh -g port>
read: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv4Manager.sh -g port
TRACE[time]:Output: :<on?100?full>
TRACE[time]:Exiting get_eth2_port_settings:<>
