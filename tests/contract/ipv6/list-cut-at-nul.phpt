--TEST--
An address, like its trace, ends at its first NUL; the pieces are parted before.
--FILE--
<?php
include 'scripted_platform.inc';
answer(IPV6 . '-g all', exits(0), "2001:db8::10\0x?\0?2001:db8::11");
show(get_all_ipv6_addresses());
show_lines('/Adding/');
--EXPECT--
array(0: "2001:db8::10", 1: "", 2: "2001:db8::11")
TRACE[time]:Adding IPv6 :<2001:db8::10>
TRACE[time]:Adding IPv6 :<>
TRACE[time]:Adding IPv6 :<2001:db8::11>
