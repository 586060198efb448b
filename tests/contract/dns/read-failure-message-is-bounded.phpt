--TEST--
The report holds 1024 bytes of the output at most, then "..." where it was cut, never half of a character; the servers are whole.
--FILE--
<?php
include 'scripted_platform.inc';
function show_message($letters, $rest) {
  $output = str_repeat('a', $letters) . $rest;
  answer(IPV6 . '-g dns', exits(1), $output);
  $servers = get_network_dns(new Session());
  preg_match('|^report: Failed "Failed to get DNS addresses: (a*)(.*)" http/src|m', transcript(), $message);
  echo $letters, ' and "', addcslashes($rest, "\177..\377"), '": ', strlen($message[1]), ' and "', $message[2], '"',
      $servers->dnsPrimary === $output ? "\n" : ", not the whole server\n";
  forget_transcript();
}
show_message(1023, '');
show_message(1024, '');
show_message(1025, '');
show_message(1048576, '');
$u_umlaut = "\xC3\xBC";
show_message(1022, $u_umlaut);
show_message(1022, $u_umlaut . 'b');
show_message(1023, $u_umlaut);
show_message(1024, $u_umlaut);
$euro = "\xE2\x82\xAC";
show_message(1021, $euro . 'b');
show_message(1022, $euro);
show_message(1023, $euro);
show_message(1024, $euro);
$clef = "\xF0\x9D\x84\x9E";
show_message(1020, $clef);
show_message(1020, $clef . 'b');
show_message(1021, $clef);
show_message(1022, $clef);
show_message(1023, $clef);
show_message(1024, $clef);
show_message(1019, "$clef$euro$u_umlaut");
--EXPECT--
1023 and "": 1023 and ""
1024 and "": 1024 and ""
1025 and "": 1024 and "..."
1048576 and "": 1024 and "..."
1022 and "\303\274": 1022 and "\xC3\xBC"
1022 and "\303\274b": 1022 and "\xC3\xBC..."
1023 and "\303\274": 1023 and "..."
1024 and "\303\274": 1024 and "..."
1021 and "\342\202\254b": 1021 and "\xE2\x82\xAC..."
1022 and "\342\202\254": 1022 and "..."
1023 and "\342\202\254": 1023 and "..."
1024 and "\342\202\254": 1024 and "..."
1020 and "\360\235\204\236": 1020 and "\xF0\x9D\x84\x9E"
1020 and "\360\235\204\236b": 1020 and "\xF0\x9D\x84\x9E..."
1021 and "\360\235\204\236": 1021 and "..."
1022 and "\360\235\204\236": 1022 and "..."
1023 and "\360\235\204\236": 1023 and "..."
1024 and "\360\235\204\236": 1024 and "..."
1019 and "\360\235\204\236\342\202\254\303\274": 1019 and "\xF0\x9D\x84\x9E..."
