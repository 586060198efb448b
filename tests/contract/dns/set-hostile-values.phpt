--TEST--
Whatever a text holds, it reaches the command line as it is, a quote included: nothing is escaped or left out.
--FILE--
<?php
include 'scripted_platform.inc';
$values = array('10.1.1.1; reboot', 'a|b', 'a && b', '$(reboot)', '`reboot`', '$HOME', '*', '?', '-n', '--', "it's",
                '"quoted"', '"', '" -r "', '\\', '\\"', "two\nlines", "tab\there", ' ', "\n", "\xC3\xBC", "\xFF", '%s%n', '#', '>out');
// The table holds the whole command line: a command that is not exactly this one has no answer and fails.
foreach (array('dnsPrimary', 'dnsSecondary') as $name) {
  foreach ($values as $value) {
    $settings = new stdClass();
    $settings->dnsPrimary = '10.1.1.1';
    $settings->dnsSecondary = '10.1.1.2';
    $settings->$name = $value;
    answer(IPV6 . "-D \"$settings->dnsPrimary $settings->dnsSecondary\"", exits(0), 'done');
    set_network_dns(new Session(), $settings);
  }
  echo $name, ': ', preg_match_all('/:Output = :<done>/', transcript(), $unused), ' of ', count($values), "\n";
  show_lines('/^report|returnCode/');
}
--EXPECT--
dnsPrimary: 25 of 25
dnsSecondary: 25 of 25
