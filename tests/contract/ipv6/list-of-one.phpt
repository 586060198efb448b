--TEST--
An output without a question mark is one address.
--FILE--
<?php
include 'scripted_platform.inc';
answer(IPV6 . '-g all', exits(0), '2001:db8::10');
show(get_all_ipv6_addresses());
show_transcript();
--EXPECT--
array(0: "2001:db8::10")
TRACE[time]:Entering get_all_ipv6_addresses:<>
read: /usr/bin/cmdwrap -NO_END_OF_FILE /bin/sh /home/embedded/library/AppManager/bin/ipv6Manager.sh -g all
TRACE[time]:Adding IPv6 :<2001:db8::10>
TRACE[time]:Exiting get_all_ipv6_addresses:<>
