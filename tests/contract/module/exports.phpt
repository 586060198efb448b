--TEST--
The module exports its entry point and those of its two workers, and nothing else.
--FILE--
<?php
include 'scripted_platform.inc';
foreach (explode("\n", trim(shell_exec('nm --dynamic --defined-only ' . getenv('SCRIPTED_PLATFORM_MODULE')))) as $line) {
  echo preg_replace('/^[0-9a-f]+ /', '', $line), "\n";
}
--EXPECT--
T get_module
T set_network_ipv4
T set_network_ipv6
