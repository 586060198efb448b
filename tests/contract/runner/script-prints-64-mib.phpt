--TEST--
An output of 64 MiB is returned and traced whole.
--PLATFORM--
development
--INI--
memory_limit=512M
--FILE--
<?php
include 'scripted_platform.inc';
write_script(IPV4_SCRIPT, 'head -c 67108864 /dev/zero | tr "\0" n');
$output = get_network_hostname();
echo strlen($output), ' bytes, ', strspn($output, 'n'), " of them right\n";
$trace = filesize(platform_file('transcript'));
echo $trace > 67108864 && $trace < 67108864 + 1000 ? "traced once\n" : "the trace has $trace bytes\n";
echo 'warnings: ', shell_exec("grep -c '^Warning' " . platform_file('transcript'));
--EXPECT--
67108864 bytes, 67108864 of them right
traced once
warnings: 0
