--TEST--
Words behind the second are left out.
--FILE--
<?php
include 'scripted_platform.inc';
answer(IPV6 . '-g dns', exits(0), '10.1.1.1 10.1.1.2 10.1.1.3');
show(get_network_dns(new Session()));
answer(IPV6 . '-g dns', exits(0), 'a b' . str_repeat(' c', 1000));
show(get_network_dns(new Session()));
show_lines('/^report/');
--EXPECT--
stdClass {dnsPrimary: "10.1.1.1", dnsSecondary: "10.1.1.2"}
stdClass {dnsPrimary: "a", dnsSecondary: "b"}
