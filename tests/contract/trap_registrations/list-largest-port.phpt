--TEST--
A port of all bits is listed as that unsigned number; on standard error it is the signed one.
--FILE--
<?php
include 'scripted_platform.inc';
answer('IMgmtAppConfig.getTrapRegistrations', 'Succeeded',
       '00000000-00000000-00000000', 1, '192.0.2.1', 4294967295);
foreach (get_snmp_trap_regs(new Session()) as $receiver) echo sprintf('%u', $receiver->port), "\n"; // an engine's integer may have 32 bits
show_lines('/^1 - /');
--EXPECT--
4294967295
1 - 192.0.2.1 - -1 - 00000000-00000000-00000000
