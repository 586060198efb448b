--TEST--
Each read runs the command again: nothing is remembered between calls.
--FILE--
<?php
include 'scripted_platform.inc';
answer(IPV4 . '-g host', exits(0), 'first');
show(get_network_hostname());
answer(IPV4 . '-g host', exits(0), 'second');
show(get_network_hostname());
answer(IPV4 . '-g host', exits(0), '');
show(get_network_hostname());
--EXPECT--
"first"
"second"
""
