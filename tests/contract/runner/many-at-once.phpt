--TEST--
Processes that run commands at the same time get their own outputs.
--PLATFORM--
development
--FILE--
<?php
include 'scripted_platform.inc';
write_script(IPV4_SCRIPT, 'printf "%s" "$PPID"');
append_to(platform_file('ask.php'), '<?php for ($i = 0; $i < 40; ++$i) echo get_network_hostname() == getmypid() ? "+" : "-";');
$processes = array();
for ($i = 0; $i < 8; ++$i) {
  $processes[] = popen(getenv('SCRIPTED_PLATFORM_PHP') . ' ' . platform_file('ask.php') . ' 2>/dev/null', 'r');
}
foreach ($processes as $process) echo fgets($process), "\n";
--EXPECT--
++++++++++++++++++++++++++++++++++++++++
++++++++++++++++++++++++++++++++++++++++
++++++++++++++++++++++++++++++++++++++++
++++++++++++++++++++++++++++++++++++++++
++++++++++++++++++++++++++++++++++++++++
++++++++++++++++++++++++++++++++++++++++
++++++++++++++++++++++++++++++++++++++++
++++++++++++++++++++++++++++++++++++++++
