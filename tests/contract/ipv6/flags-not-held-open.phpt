--TEST--
No call keeps a flag file open.
--FILE--
<?php
include 'scripted_platform.inc';
answer(WRAPPER . '/bin/rm ' . IPV6_ENABLED_FILE, exits(0), '');
touch(IPV6_ENABLED_FILE);
touch(IPV6_DHCP_FILE);
function ask_for_flags() {
  is_ipv6_enabled();
  is_ipv6_dhcp_enabled();
  set_ipv6_enabled(new Session(), false);
}
ask_for_flags();
$before = count(glob('/proc/self/fd/*'));
for ($i = 0; $i < 25; ++$i) ask_for_flags();
echo count(glob('/proc/self/fd/*')) - $before, " descriptors more\n";
--EXPECT--
0 descriptors more
