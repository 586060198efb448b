--TEST--
A server counts up to its first NUL; so does the trace of the output.
--FILE--
<?php
include 'scripted_platform.inc';
$settings = new stdClass();
$settings->dnsPrimary = "10.1.1.1\0; reboot";
$settings->dnsSecondary = "\0" . '10.1.1.2';
answer(IPV6 . '-D "10.1.1.1 "', exits(0), "do\0ne");
set_network_dns(new Session(), $settings);
show_lines('/^read|Output/');
--EXPECT--
read: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv6Manager.sh -D [10.1.1.1 ]
TRACE[time]:Output = :<do>
