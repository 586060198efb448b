--TEST--
The report of an output that is no UTF-8, nothing but continuation bytes, is bounded all the same, at most three bytes earlier.
--FILE--
<?php
include 'scripted_platform.inc';
$output = str_repeat("\x80", 2000);
answer(IPV6 . '-g dns', exits(1), $output);
$servers = get_network_dns(new Session());
preg_match('|^report: Failed "Failed to get DNS addresses: ((\\\\x80)*)(.*)" http/src|m', transcript(), $message);
$bytes = strlen($message[1]) / strlen('\x80');
echo $bytes >= 1021 && $bytes <= 1024 ? 'bounded' : "$bytes bytes", ' and "', $message[3], "\"\n";
show($servers->dnsPrimary === $output);
--EXPECT--
bounded and "..."
true
