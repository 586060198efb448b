--TEST--
A transport of more than 31 bits is listed as that unsigned number; on standard error it is the signed one.
--FILE--
<?php
include 'scripted_platform.inc';
answer('IMgmtAppConfig.getTrapRegistrations', 'Succeeded',
       '00000000-00000000-00000000', 2147483648, '192.0.2.1', 162,
       '00000000-00000000-00000000', 4294967295, '192.0.2.1', 162);
foreach (get_snmp_trap_regs(new Session()) as $receiver) echo sprintf('%u', $receiver->transport), "\n"; // an engine's integer may have 32 bits
show_lines('/ - 192/');
--EXPECT--
2147483648
4294967295
-2147483648 - 192.0.2.1 - 162 - 00000000-00000000-00000000
-1 - 192.0.2.1 - 162 - 00000000-00000000-00000000
