--TEST--
What the script printed is shown as it is, also where it looks like a format.
--FILE--
<?php
include 'scripted_platform.inc';
answer(IPV6 . '-g dns', exits(1), "100%s %n\n%%");
get_network_dns(new Session());
show_lines('/^report/');
--EXPECT--
report: Failed "Failed to get DNS addresses: 100%s %n\n%%" http/src/network
