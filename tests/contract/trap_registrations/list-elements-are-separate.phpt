--TEST--
Each receiver is an object of its own: changing one leaves the others alone.
--FILE--
<?php
include 'scripted_platform.inc';
answer('IMgmtAppConfig.getTrapRegistrations', 'Succeeded',
       '01020304-05060708-090a0b0c', 1, '192.0.2.1', 162,
       '00000000-00000000-00000002', 2, '192.0.2.2', 65535);
$receivers = get_snmp_trap_regs(new Session());
$receivers[0]->ip = 'changed';
$receivers[0]->port = 1;
show($receivers);
--EXPECT--
array(0: stdClass {transport: integer 1, ip: "changed", port: integer 1, id: "01020304-05060708-090a0b0c"}, 1: stdClass {transport: integer 2, ip: "192.0.2.2", port: integer 65535, id: "00000000-00000000-00000002"})
