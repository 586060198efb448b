--TEST--
Servers are neither checked nor trimmed.
--FILE--
<?php
include 'scripted_platform.inc';
$settings = new stdClass();
$settings->dnsPrimary = ' disabled ';
$settings->dnsSecondary = '2001:DB8::0053%eth0 300.1.1.1';
answer(IPV6 . '-D " disabled  2001:DB8::0053%eth0 300.1.1.1"', exits(0), '');
set_network_dns(new Session(), $settings);
show_lines('/^read/');
--EXPECT--
read: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv6Manager.sh -D [ disabled  2001:DB8::0053%eth0 300.1.1.1]
