--TEST--
Two question marks in a row, and one at the start or the end, make an empty element each.
--FILE--
<?php
include 'scripted_platform.inc';
foreach (array('?', '??', 'a?', '?a', 'a??b') as $output) {
  answer(IPV6 . '-g all', exits(0), $output);
  show(get_all_ipv6_addresses());
}
show_lines('/Adding/');
--EXPECT--
array(0: "", 1: "")
array(0: "", 1: "", 2: "")
array(0: "a", 1: "")
array(0: "", 1: "a")
array(0: "a", 1: "", 2: "b")
TRACE[time]:Adding IPv6 :<>
TRACE[time]:Adding IPv6 :<>
TRACE[time]:Adding IPv6 :<>
TRACE[time]:Adding IPv6 :<>
TRACE[time]:Adding IPv6 :<>
TRACE[time]:Adding IPv6 :<a>
TRACE[time]:Adding IPv6 :<>
TRACE[time]:Adding IPv6 :<>
TRACE[time]:Adding IPv6 :<a>
TRACE[time]:Adding IPv6 :<a>
TRACE[time]:Adding IPv6 :<>
TRACE[time]:Adding IPv6 :<b>
