--TEST--
Pieces are neither checked nor trimmed, reformatted, sorted or made unique, and are always texts.
--FILE--
<?php
include 'scripted_platform.inc';
answer(IPV6 . '-g all', exits(0), "none? FE80::0001%eth0 ?7?10.0.0.1?b?a?a?\xC3\xBC?two\nlines");
show(get_all_ipv6_addresses());
--EXPECT--
array(0: "none", 1: " FE80::0001%eth0 ", 2: "7", 3: "10.0.0.1", 4: "b", 5: "a", 6: "a", 7: "\303\274", 8: "two\nlines")
