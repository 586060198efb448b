--TEST--
"disabled" with a NUL in or behind it is not exactly that word: it is shown up to the NUL.
--FILE--
<?php
include 'scripted_platform.inc';
foreach (array("disabled\0", "disabled\0x 10.1.1.2", "\0disabled 10.1.1.2", "dis\0abled") as $output) {
  answer(IPV6 . '-g dns', exits(0), $output);
  show(get_network_dns(new Session()));
}
--EXPECT--
stdClass {dnsPrimary: "disabled", dnsSecondary: ""}
stdClass {dnsPrimary: "disabled", dnsSecondary: "10.1.1.2"}
stdClass {dnsPrimary: "", dnsSecondary: "10.1.1.2"}
stdClass {dnsPrimary: "dis", dnsSecondary: ""}
