--TEST--
A text result belongs to the page: changing it, or getting another, leaves the first as it is.
--FILE--
<?php
include 'scripted_platform.inc';
answer(IPV4 . '-g host', exits(0), 'library');
$first = get_network_hostname();
$changed = get_network_hostname();
$changed[0] = 'L';
answer(IPV4 . '-g host', exits(0), 'another');
$second = get_network_hostname();
show($first);
show($changed);
show($second);
--EXPECT--
"library"
"Library"
"another"
