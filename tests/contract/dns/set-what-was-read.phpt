--TEST--
The object that was read can be set as it is; no primary server is then the empty text, not "disabled".
--FILE--
<?php
include 'scripted_platform.inc';
answer(IPV6 . '-g dns', exits(0), 'disabled 10.0.0.2');
answer(IPV6 . '-D " 10.0.0.2"', exits(0), '');
set_network_dns(new Session(), get_network_dns(new Session()));
show_lines('/^(read|report)/');
--EXPECT--
read: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv6Manager.sh -g dns
read: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv6Manager.sh -D [ 10.0.0.2]
