--TEST--
Whatever a text holds, it reaches the command line as it is: nothing is quoted, escaped or left out.
--FILE--
<?php
include 'scripted_platform.inc';
$values = array('2001:db8::10; reboot', 'a|b', 'a && b', '$(reboot)', '`reboot`', '$HOME', '*', '?', '-n', '--', "it's",
                '"quoted"', '"', '\\', "two\nlines", "tab\there", ' ', "\n", "\xC3\xBC", "\xFF", '%s%n', '#', '>out');
// The table holds the whole command line: a command that is not exactly this one has no answer, and the worker
// ends without its last line.
foreach (array('ipStatic', 'prefix', 'gateway') as $name) {
  foreach ($values as $value) {
    $settings = new Ipv6Settings();
    $settings->$name = $value;
    answer(IPV6 . "-c -s $settings->ipStatic/$settings->prefix?$settings->gateway", exits(0));
    set_network_configuration_ipv6(new Session(), $settings);
    run_thread();
  }
  echo $name, ': ', preg_match_all('/:Leaving set_network_ipv6:/', transcript(), $unused), ' of ', count($values), "\n";
  show_lines('/Failed/');
}
--EXPECT--
ipStatic: 23 of 23
prefix: 23 of 23
gateway: 23 of 23
