--TEST--
Only exactly "disabled" stands for no primary server.
--FILE--
<?php
include 'scripted_platform.inc';
foreach (array('Disabled', 'DISABLED', 'disable', 'disabled2', "disabled\n", "\tdisabled", 'none') as $output) {
  answer(IPV6 . '-g dns', exits(0), $output);
  show(get_network_dns(new Session()));
}
--EXPECT--
stdClass {dnsPrimary: "Disabled", dnsSecondary: ""}
stdClass {dnsPrimary: "DISABLED", dnsSecondary: ""}
stdClass {dnsPrimary: "disable", dnsSecondary: ""}
stdClass {dnsPrimary: "disabled2", dnsSecondary: ""}
stdClass {dnsPrimary: "disabled\n", dnsSecondary: ""}
stdClass {dnsPrimary: "\tdisabled", dnsSecondary: ""}
stdClass {dnsPrimary: "none", dnsSecondary: ""}
