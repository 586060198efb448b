--TEST--
A value is appended to the command as it is, whatever its characters: nothing is quoted, escaped or left out.
--FILE--
<?php
include 'scripted_platform.inc';
$values = array('new name', "it's", '"quoted"', 'a;b', 'a|b', 'a&b', '$(reboot)', '`reboot`', '$HOME', 'a*b?', '>out', '\\',
                "two\nlines", "tab\there", '-n', '--', "\xC3\xBC", "\xFF", ' ', "\n", '%s%n', '#');
answer('gethostname', 'library');
answer('IMgmtAppConfig.getSSLEnabled', 'Succeeded', 0);
// The table holds the whole command line: a command that is not exactly this one has no answer.
foreach ($values as $value) {
  answer(IPV4 . '-n ' . $value, exits(0));
  set_network_hostname(new Session(), $value);
}
echo preg_match_all('/^run: /m', transcript(), $unused), ' of ', count($values), " commands were as they should be\n";
echo preg_match('/^(unexpected|report)/m', transcript()), " were not\n";
--EXPECT--
22 of 22 commands were as they should be
0 were not
