--TEST--
The six functions that parse no arguments ignore any that are passed.
--FILE--
<?php
include 'scripted_platform.inc';
answer(IPV4 . '-g host', exits(0), 'library');
answer(IPV6 . '-g static', exits(0), '2001:db8::10/64?2001:db8::1');
answer(IPV6 . '-l', exits(0), '1');
answer(IPV6 . '-g all', exits(0), '2001:db8::10?2001:db8::11');

function compare($function) {
  $plain = text_of($function()) . "\n" . masked_transcript();
  forget_transcript();
  $extra = text_of($function(1, 'two', array(3), new Session(), null)) . "\n" . masked_transcript();
  forget_transcript();
  echo $function, ': ', preg_match("/Exiting $function/", $plain), $plain == $extra ? " the same\n" : " not the same\n$extra";
}
compare('is_ipv6_enabled');
compare('is_ipv6_static_enabled');
compare('is_stateless_enabled');
compare('is_ipv6_dhcp_enabled');
compare('get_all_ipv6_addresses');
compare('get_network_hostname');
--EXPECT--
is_ipv6_enabled: 1 the same
is_ipv6_static_enabled: 1 the same
is_stateless_enabled: 1 the same
is_ipv6_dhcp_enabled: 1 the same
get_all_ipv6_addresses: 1 the same
get_network_hostname: 1 the same
