--TEST--
A missing server, and one that is no text, counts as the empty one; the blank between both stays.
--FILE--
<?php
include 'scripted_platform.inc';
$settings = new stdClass();
answer(IPV6 . '-D " "', exits(0), '');
set_network_dns(new Session(), $settings);
$settings->dnsSecondary = '10.1.1.2';
answer(IPV6 . '-D " 10.1.1.2"', exits(0), '');
set_network_dns(new Session(), $settings);
foreach (array(null, false, 0, array('10.1.1.1')) as $none) {
  $settings->dnsPrimary = $none;
  set_network_dns(new Session(), $settings);
}
show_lines('/^(read|report)/');
--EXPECT--
read: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv6Manager.sh -D [ ]
read: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv6Manager.sh -D [ 10.1.1.2]
read: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv6Manager.sh -D [ 10.1.1.2]
read: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv6Manager.sh -D [ 10.1.1.2]
read: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv6Manager.sh -D [ 10.1.1.2]
read: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv6Manager.sh -D [ 10.1.1.2]
