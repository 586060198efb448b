--TEST--
Each single blank parts two words, which may be empty; no other character does.
--FILE--
<?php
include 'scripted_platform.inc';
foreach (array(' ', ' a', 'a ', 'a  b', "a\tb c", "a\nb", ' disabled') as $output) {
  answer(IPV6 . '-g dns', exits(0), $output);
  show(get_network_dns(new Session()));
}
--EXPECT--
stdClass {dnsPrimary: "", dnsSecondary: ""}
stdClass {dnsPrimary: "", dnsSecondary: "a"}
stdClass {dnsPrimary: "a", dnsSecondary: ""}
stdClass {dnsPrimary: "a", dnsSecondary: ""}
stdClass {dnsPrimary: "a\tb", dnsSecondary: "c"}
stdClass {dnsPrimary: "a\nb", dnsSecondary: ""}
stdClass {dnsPrimary: "", dnsSecondary: "disabled"}
