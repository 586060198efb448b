--TEST--
Every byte but NUL comes back as it was printed.
--FILE--
<?php
include 'scripted_platform.inc';
$bytes = '';
for ($i = 1; $i < 256; ++$i) $bytes .= chr($i);
answer(IPV4 . '-g host', exits(0), $bytes);
echo get_network_hostname() === $bytes ? "the same\n" : "not the same\n";
--EXPECT--
the same
