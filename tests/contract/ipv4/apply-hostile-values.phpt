--TEST--
Whatever a text holds, it reaches the command line as it is: nothing is quoted, escaped or left out.
--FILE--
<?php
include 'scripted_platform.inc';
$values = array('10.0.0.5; reboot', 'a|b', 'a && b', '$(reboot)', '`reboot`', '$HOME', '*', '?', '-n', '--', "it's",
                '"quoted"', '"', '\\', "two\nlines", "tab\there", ' ', "\n", "\xC3\xBC", "\xFF", '%s%n', '#', '>out');
answer('IMgmtAppConfig.getSSLEnabled', 'Succeeded', 0);
answer('gethostname', 'library');
// The table holds the whole command line: a command that is not exactly this one has no answer, and the worker
// ends without its last line.
foreach (array('hostname', 'ip', 'netmask', 'gateway') as $name) {
  foreach ($values as $value) {
    $settings = new Ipv4Settings();
    $settings->$name = $value;
    answer(IPV4 . '-n ' . $settings->hostname, exits(0));
    answer(IPV4 . "-c -s $settings->ip?$settings->netmask?$settings->gateway", exits(0));
    set_network_configuration_ipv4(new Session(), $settings);
    run_thread();
  }
  echo $name, ': ', preg_match_all('/:Leaving set_network_ipv4:/', transcript(), $unused), ' of ', count($values), "\n";
  show_lines('/Could not/');
}
--EXPECT--
hostname: 23 of 23
ip: 23 of 23
netmask: 23 of 23
gateway: 23 of 23
